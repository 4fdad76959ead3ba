#include "catalogue/ShortcutWalk.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QProcess>

#include <gmock/gmock.h>

#include <map>

namespace {

/// What the command interpreter lists: "dir FOLDER /S /B", but for names outside its code page.
QStringList shortcutsByInterpreter(const QString& folder) {
    QProcess process;
    process.start("cmd.exe", {"/C", "dir", folder, "/S", "/B"});
    EXPECT_TRUE(process.waitForFinished());
    QStringList shortcuts;
    for (const QString& line : QString::fromUtf8(process.readAllStandardOutput()).split('\n')) {
        if (line.trimmed().endsWith(".lnk")) {
            shortcuts.append(line.trimmed());
        }
    }
    return shortcuts;
}

QString folderOf(const QString& path) {
    return path.left(path.lastIndexOf('\\'));
}

/// The numbers of the first and the last path of each folder.
std::map<QString, std::pair<int, int>> placesOf(const QStringList& paths) {
    std::map<QString, std::pair<int, int>> places;
    for (int i = 0; i < paths.size(); ++i) {
        places.emplace(folderOf(paths.at(i)), std::pair(i, i)).first->second.second = i;
    }
    return places;
}

TEST(InterpreterTest, TheWalkListsWhatTheCommandInterpreterLists) {
    TestPc pc;
    for (const char* path :
         {"z.lnk", "a.lnk", "B.LNK", "hidden.lnk", "Programs\\b.lnk", "Programs\\a.lnk", "Programs\\Games\\x.lnk",
          "Programs\\Games\\readme.txt", "Programs\\Games\\More\\y.lnk", "Programs\\Hidden\\h.lnk",
          "Programs\\folder.lnk\\i.lnk", "Programs\\system.lnk", "Accessories\\c.lnk"}) {
        pc.file(QString("C:\\Menu\\") + path);
    }
    pc.hide("C:\\Menu\\hidden.lnk");
    pc.hide("C:\\Menu\\Programs\\Hidden");
    pc.makeSystem("C:\\Menu\\Programs\\system.lnk");
    const QStringList walked = shortcutsBelow("C:\\Menu", 30'000);
    const QStringList interpreted = shortcutsByInterpreter("C:\\Menu");
    EXPECT_THAT(walked, ::testing::UnorderedElementsAreArray(interpreted));
    EXPECT_EQ(walked.size(), 10);

    for (const QStringList& list : {walked, interpreted}) {
        const auto places = placesOf(list);
        for (const auto& [folder, place] : places) {
            for (const auto& [other, otherPlace] : places) {
                if (other.startsWith(folder + '\\')) {
                    EXPECT_LT(place.second, otherPlace.first) << "a folder's own come first";
                }
            }
        }
    }
}

} // namespace
