#include "steam/SteamLibraryIndex.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders.SteamGames";

template <class Entries>
QStringList textsOf(const Entries& entries) {
    QStringList texts;
    for (const SteamAppEntry& entry : entries) {
        texts.append(entry.appId + " in " + entry.commonFolder);
    }
    return texts;
}

class SteamLibraryIndexTest : public ::testing::Test {
protected:
    SteamLibraryIndexTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.shellFolder(Platform::csidlCommonStartMenu, "C:\\All Users' Menu");
    }

    void installSteam() {
        pc.file("C:\\Steam\\steam.exe");
        pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "",
                 "\"C:\\Steam\\steam.exe\" -- \"%1\"");
    }

    void listLibraries(const QStringList& libraries) {
        QByteArray vdf;
        for (QString library : libraries) {
            vdf += "\"path\" \"" + library.replace('\\', "\\\\").toUtf8() + "\"\n";
        }
        pc.file("C:\\Steam\\steamapps\\libraryfolders.vdf", vdf);
    }

    TestPc pc;
    SteamLibraryIndex index;
};

TEST_F(SteamLibraryIndexTest, ListsTheAppsOfAllLibraries) {
    installSteam();
    listLibraries({"C:\\Steam", "D:\\SteamLibrary", "E:\\Gone"});
    pc.file("C:\\Steam\\steamapps\\appmanifest_228980.acf");
    pc.file("D:\\SteamLibrary\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\SteamLibrary\\steamapps\\appmanifest_250820.acf");
    EXPECT_THAT(textsOf(index.entries()),
                ElementsAre("228980 in C:/Steam/steamapps/common", "250820 in D:/SteamLibrary/steamapps/common",
                            "440 in D:/SteamLibrary/steamapps/common"));
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: SteamExeFinder: Checking C:\\Steam\\steam.exe", "A: Library Folder: C:/Steam/steamapps",
                            "A:   App ID: 228980", "A: Library Folder: D:/SteamLibrary/steamapps",
                            "A:   App ID: 250820", "A:   App ID: 440"));
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1) << "the log is the build's";
}

TEST_F(SteamLibraryIndexTest, WithoutTheClientItIsEmpty) {
    pc.file("C:\\Steam\\steamapps\\appmanifest_440.acf");
    EXPECT_THAT(index.entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Steam.exe not found"));
}

TEST_F(SteamLibraryIndexTest, WithoutAManifestItIsEmpty) {
    installSteam();
    EXPECT_THAT(index.entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: SteamExeFinder: Checking C:\\Steam\\steam.exe",
                                                  "A: Library Folder: C:/Steam/steamapps", "A: No App ID"))
        << "the client's own library need not exist";
}

TEST_F(SteamLibraryIndexTest, TheIdIsInTheManifestsNameBeforeItsFirstDot) {
    installSteam();
    for (const char* name :
         {"appmanifest_440.acf", "appmanifest_441.tmp.acf", "AppManifest_442.acf", "appmanifest_443.ACF",
          "appmanifest_.acf", "appmanifest_four four.acf", "appmanifest_0440.acf", "appmanifest_444.acf.bak",
          "appmanifest445.acf", "x_appmanifest_446.acf", "appmanifest_447.acfx", "libraryfolders.vdf", "other.acf"}) {
        pc.file(QString("C:\\Steam\\steamapps\\") + name);
    }
    pc.folder("C:\\Steam\\steamapps\\appmanifest_448.acf");
    QStringList ids;
    for (const SteamAppEntry& entry : index.entries()) {
        ids.append(entry.appId);
    }
    EXPECT_THAT(ids, ::testing::UnorderedElementsAre("440", "441", "443", "", "four four", "0440"));
    EXPECT_TRUE(pc.messages(logName).contains("A:   App ID: "));
}

TEST_F(SteamLibraryIndexTest, AnAppInTwoLibrariesIsThereTwice) {
    installSteam();
    listLibraries({"D:\\SteamLibrary"});
    pc.file("C:\\Steam\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\SteamLibrary\\steamapps\\appmanifest_440.acf");
    QStringList folders;
    for (const SteamAppEntry& entry : index.findByAppId("440")) {
        folders.append(entry.commonFolder);
    }
    EXPECT_THAT(folders, ElementsAre("C:/Steam/steamapps/common", "D:/SteamLibrary/steamapps/common"));
    EXPECT_THAT(index.findByAppId("0440"), IsEmpty());
    EXPECT_THAT(index.findByAppId(""), IsEmpty());
}

TEST_F(SteamLibraryIndexTest, ALibraryIsReadOnceHoweverOftenItIsListed) {
    installSteam();
    listLibraries({"D:\\SteamLibrary", "C:\\Steam", "C:\\Steam\\", "D:/SteamLibrary"});
    pc.file("C:\\Steam\\steamapps\\appmanifest_1.acf");
    pc.file("D:\\SteamLibrary\\steamapps\\appmanifest_2.acf");
    EXPECT_THAT(textsOf(index.entries()),
                ElementsAre("1 in C:/Steam/steamapps/common", "2 in D:/SteamLibrary/steamapps/common"));
}

TEST_F(SteamLibraryIndexTest, ALibraryInAnotherLetterCaseIsAnother) {
    installSteam();
    listLibraries({"C:\\steam"});
    pc.file("C:\\Steam\\steamapps\\appmanifest_1.acf");
    EXPECT_THAT(textsOf(index.entries()),
                ElementsAre("1 in C:/Steam/steamapps/common", "1 in C:/steam/steamapps/common"));
}

TEST_F(SteamLibraryIndexTest, TheClientMayBeFoundThroughTheStartMenu) {
    pc.file("D:\\Steam\\Steam.exe");
    pc.shortcut("C:\\Menu\\Steam.lnk", "D:\\Steam\\Steam.exe");
    pc.file("D:\\Steam\\steamapps\\appmanifest_440.acf");
    EXPECT_THAT(textsOf(index.entries()), ElementsAre("440 in D:/Steam/steamapps/common"));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: StartMenu: Found D:/Steam/Steam.exe",
                                                  "A: Library Folder: D:/Steam/steamapps", "A:   App ID: 440"));
}

} // namespace
