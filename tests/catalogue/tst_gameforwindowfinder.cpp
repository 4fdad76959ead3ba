#include "catalogue/GameForWindowFinder.h"

#include "catalogue/GamesExplorerIndex.h"

#include "common/FindersAtOnce.h"
#include "common/Games.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"

#include <QCoreApplication>
#include <QDir>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GameForWindowFinderTest : public FinderTest {
protected:
    Answer find(const QString& title, const QStringList& executables) {
        return ask(Finders::GameForWindowFinder(&logger, &index, title, executables));
    }

    GamesExplorerIndex index;
};

TEST_F(GameForWindowFinderTest, TheRegisteredExecutableWinsOutright) {
    for (const char* name : {"x.exe", "a.exe"}) {
        pc.file(QString("C:\\Games\\X\\") + name);
    }
    addGame(pc, {"{1}", "SOME GAME", "C:/Games/X/x.exe", "C:\\Games\\X"});
    EXPECT_EQ(find("Some Game", {"a.exe"}), foundIn("C:/Games/X", {"C:/Games/X/x.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: GameForWindow: C:/Games/X/x.exe"));
}

TEST_F(GameForWindowFinderTest, TheRegisteredExecutableStaysAsStoredAndItsFolderTakesSlashes) {
    pc.file("C:\\Games\\X\\x.exe");
    addGame(pc, {"{1}", "X", "C:\\Games\\X\\x.exe", {}});
    EXPECT_EQ(find("X", {}), foundIn("C:/Games/X", {"C:\\Games\\X\\x.exe"}));
}

TEST_F(GameForWindowFinderTest, WhiteSpaceAtTheEndOfItsFolderGoes) {
    const QString folder = QString("C:\\Games\\X") + QChar(QChar::Nbsp); // a blank may not end a name on Windows
    pc.file(folder + "\\x.exe");
    addGame(pc, {"{1}", "X", folder + "\\x.exe", {}});
    EXPECT_TRUE(find("X", {}));
    EXPECT_EQ(location.installFolder, "C:/Games/X");
    EXPECT_EQ(location.launchCommand, folder + "\\x.exe");
}

TEST_F(GameForWindowFinderTest, OtherwiseEveryExecutableInTheRegisteredFolderIsFound) {
    for (const char* name : {"c.exe", "bin\\a.exe"}) {
        pc.file(QString("C:\\Games\\X\\") + name);
    }
    addGame(pc, {"{1}", "X", "C:\\Games\\X\\gone.exe", "C:\\Games\\X"});
    EXPECT_EQ(find("X", {"bin\\a.exe", "b.exe", "c.exe"}),
              foundIn("C:\\Games\\X", {"C:\\Games\\X\\bin\\a.exe", "C:\\Games\\X\\c.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: GameForWindow: C:\\Games\\X\\bin\\a.exe"));
}

TEST_F(GameForWindowFinderTest, TheRegisteredFolderIsTakenAsStored) {
    pc.file("C:\\Games\\X\\a.exe");
    addGame(pc, {"{1}", "X", {}, "C:/Games\\X\\"});
    EXPECT_TRUE(find("X", {"a.exe"}));
    EXPECT_EQ(location.installFolder, "C:/Games\\X\\");
    EXPECT_EQ(location.launchCommand, "C:/Games\\X\\\\a.exe") << "one separator is always added";
}

TEST_F(GameForWindowFinderTest, LeavesTheLocationAloneWhenNoTitleFits) {
    pc.file("C:\\Games\\X\\x.exe");
    addGame(pc, {"{1}", "Some Game 2", "C:\\Games\\X\\x.exe", {}});
    EXPECT_EQ(find("Some Game", {"x.exe"}), leftAlone()) << "a part of a title is not enough";
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(GameForWindowFinderTest, ResetsTheLocationWhenNoFileExists) {
    pc.folder("C:\\Games\\X");
    addGame(pc, {"{1}", "X", "C:\\Games\\X\\x.exe", "C:\\Games\\X"});
    EXPECT_EQ(find("X", {"a.exe"}), failedIn(""));
    EXPECT_EQ(find("X", {}), failedIn(""));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(GameForWindowFinderTest, WithoutAFolderTheExecutablesAreNotLookedFor) {
    addGame(pc, {"{1}", "X", {}, {}});
    pc.file("C:\\a.exe");
    const QString program = QCoreApplication::applicationFilePath();
    const QString current = QDir::currentPath();
    QDir::setCurrent("C:\\"); // so that a separator alone would lead to the file
    EXPECT_EQ(find("X", {"a.exe", "C:\\a.exe", program.mid(program.indexOf('/') + 1)}), failedIn(""));
    QDir::setCurrent(current);
}

TEST_F(GameForWindowFinderTest, TheFirstEntryWithFilesWins) {
    pc.file("C:\\Games\\2\\x.exe");
    pc.file("C:\\Games\\3\\x.exe");
    addGame(pc, {"{1}", "X", "C:\\Games\\1\\x.exe", "C:\\Games\\1"});
    addGame(pc, {"{2}", "x", "C:\\Games\\2\\gone.exe", "C:\\Games\\2"});
    addGame(pc, {"{3}", "X", "C:\\Games\\3\\x.exe", {}});
    EXPECT_TRUE(find("X", {"x.exe"}));
    EXPECT_EQ(location.launchCommand, "C:\\Games\\2\\x.exe");
    EXPECT_EQ(location.installFolder, "C:\\Games\\2");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: GameForWindow: C:\\Games\\2\\x.exe"));
}

TEST_F(GameForWindowFinderTest, AnEmptyTitleFitsAnEntryWithoutOne) {
    pc.file("C:\\Games\\X\\x.exe");
    addGame(pc, {"{1}", {}, "C:\\Games\\X\\x.exe", {}});
    EXPECT_TRUE(find("", {}));
    EXPECT_EQ(location.launchCommand, "C:\\Games\\X\\x.exe");
}

TEST_F(GameForWindowFinderTest, TheFactoryMakesItAndKeepsOneIndexForAll) {
    pc.file("C:\\Games\\X\\x.exe");
    addGame(pc, {"{1}", "X", "C:\\Games\\X\\x.exe", {}});
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    findFolderAtOnce([&] { return factory->createGameForWindowFinder("Y", {"y.exe"}); }, "");
    EXPECT_TRUE(factory->createGameForWindowFinder("x", {"y.exe"})->find(location));
    EXPECT_EQ(location.installFolder, "C:/Games/X");
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: GameForWindow: C:\\Games\\X\\x.exe"));
    EXPECT_EQ(pc.log("Quorvan.Finders.GameForWindow").count("LOG CREATED"), 1);
}

} // namespace
