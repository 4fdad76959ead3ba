#include "catalogue/StartMenuFinder.h"

#include "catalogue/StartMenuIndex.h"

#include "common/QtPrinters.h"
#include "core/FinderTest.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StartMenuFinderTest : public FinderTest {
protected:
    StartMenuFinderTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.shellFolder(Platform::csidlCommonStartMenu, "D:\\Menu");
    }

    Answer find(const QString& name, const QStringList& executables, int matchMode = 0) {
        StartMenuIndex index;
        return ask(Finders::StartMenuFinder(&logger, &index, name, executables, matchMode));
    }

    /// A shortcut whose target exists.
    void addShortcut(const QString& path, const QString& target) {
        pc.file(target);
        pc.shortcut(path, target);
    }
};

TEST_F(StartMenuFinderTest, FindsAProgramByItsShortcut) {
    addShortcut("C:\\Menu\\Programs\\Steam\\Steam.lnk", "C:\\Games\\Steam\\Steam.exe");
    EXPECT_EQ(find("steam", {"steam.exe"}), foundIn("C:/Games/Steam", {"C:/Games/Steam/Steam.exe"}))
        << "with forward slashes";
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: StartMenu: Found C:/Games/Steam/Steam.exe"));
}

TEST_F(StartMenuFinderTest, ComparesTheShortcutsNameByTheMode) {
    addShortcut("C:\\Menu\\Steam Support.lnk", "C:\\Help\\steam.exe");
    EXPECT_EQ(find("Steam", {"steam.exe"}, 0), leftAlone()) << "no shortcut of this name";
    EXPECT_TRUE(find("Steam", {"steam.exe"}, 1));
    EXPECT_EQ(location.installFolder, "C:/Help");
    addShortcut("D:\\Menu\\steam.lnk", "C:\\Games\\Steam\\steam.exe");
    EXPECT_TRUE(find("Steam", {"steam.exe"}, 0));
    EXPECT_EQ(location.installFolder, "C:/Games/Steam");
    EXPECT_TRUE(find("Steam", {"steam.exe"}, 1));
    EXPECT_EQ(location.installFolder, "C:/Help") << "the first in list order";
    EXPECT_TRUE(find("Steam", {"steam.exe"}, 2)) << "any mode but 1";
    EXPECT_EQ(location.installFolder, "C:/Games/Steam");
}

TEST_F(StartMenuFinderTest, AnExecutableMayBeAnyPartOfTheTarget) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\bin\\X64.exe");
    EXPECT_TRUE(find("X", {"games/x"}));
    EXPECT_EQ(location.installFolder, "C:/Games/X/bin");
    EXPECT_FALSE(find("X", {"games\\x"})) << "the target has forward slashes";
    EXPECT_FALSE(find("X", {"y.exe"}));
}

TEST_F(StartMenuFinderTest, EachExecutableThatFitsAddsTheTargetOnce) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\x.exe");
    EXPECT_EQ(find("X", {"missing.exe", "X.EXE", "x.exe"}),
              foundIn("C:/Games/X", {"C:/Games/X/x.exe", "C:/Games/X/x.exe"}));
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("A: StartMenu: Found C:/Games/X/x.exe", "A: StartMenu: Found C:/Games/X/x.exe"));
}

TEST_F(StartMenuFinderTest, TheFirstShortcutThatPassesWins) {
    addShortcut("D:\\Menu\\X.lnk", "D:\\Games\\X\\x.exe");
    EXPECT_TRUE(find("X", {"x.exe"}));
    EXPECT_EQ(location.installFolder, "D:/Games/X");
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\x.exe");
    EXPECT_TRUE(find("X", {"x.exe"}));
    EXPECT_EQ(location.installFolder, "C:/Games/X") << "the user's before all users'";
}

TEST_F(StartMenuFinderTest, AShortcutWithAnotherTargetResetsTheLocationAndIsPassedOver) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Help\\help.exe");
    EXPECT_EQ(find("X", {"x.exe"}), failedIn(""));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
    addShortcut("D:\\Menu\\X.lnk", "D:\\Games\\X\\x.exe");
    EXPECT_TRUE(find("X", {"x.exe"}));
    EXPECT_EQ(location.installFolder, "D:/Games/X");
}

TEST_F(StartMenuFinderTest, TheTargetNeedNotExist) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\x.exe");
    pc.removeFile("C:\\Games\\X\\x.exe");
    EXPECT_TRUE(find("X", {"x.exe"}));
    EXPECT_EQ(location.launchCommand, "C:/Games/X/x.exe");
}

TEST_F(StartMenuFinderTest, AShortcutThatLeadsNowhereHasAnEmptyTarget) {
    pc.file("C:\\Menu\\X.lnk");
    EXPECT_EQ(find("X", {"x.exe"}), failedIn(""));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());

    EXPECT_EQ(find("X", {"x.exe", ""}), (Answer{true, {}}))
        << "an empty part is in every target, but an empty path is never added";
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: StartMenu: Found "));
}

TEST_F(StartMenuFinderTest, AFolderNamedLikeAShortcutHasNoTarget) {
    pc.folder("C:\\Menu\\X.lnk");
    EXPECT_EQ(find("X", {"x.exe"}), failedIn(""));
}

TEST_F(StartMenuFinderTest, AnExtensionInUpperCaseIsNoShortcuts) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\x.exe");
    pc.file("C:\\Menu\\Y.LNK");
    EXPECT_EQ(find("Y", {"x.exe"}), leftAlone());
}

TEST_F(StartMenuFinderTest, WithoutExecutablesNothingIsFound) {
    addShortcut("C:\\Menu\\X.lnk", "C:\\Games\\X\\x.exe");
    EXPECT_EQ(find("X", {}), failedIn(""));
}

TEST_F(StartMenuFinderTest, FollowsShortcutsWithAnyName) {
    addShortcut("C:\\Menu\\Käferrennen 競走.lnk", "C:\\Spiele\\Käferrennen\\Käfer.exe");
    EXPECT_TRUE(find("KÄFERRENNEN 競走", {"kÄFER.exe"}));
    EXPECT_EQ(location.launchCommand, "C:/Spiele/Käferrennen/Käfer.exe");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: StartMenu: Found C:/Spiele/Käferrennen/Käfer.exe"));
}

} // namespace
