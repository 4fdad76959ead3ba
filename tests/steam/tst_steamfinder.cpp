#include "steam/SteamFinder.h"

#include "catalogue/UninstallIndex.h"
#include "steam/SteamLibraryIndex.h"

#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"
#include "platform/Folders.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SteamFinderTest : public FinderTest {
protected:
    SteamFinderTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.shellFolder(Platform::csidlCommonStartMenu, "C:\\All Users' Menu");
    }

    Answer find(const QString& appId, const QString& folderName, const QStringList& executables) {
        UninstallIndex uninstallIndex;
        SteamLibraryIndex steamIndex;
        return ask(Finders::SteamFinder(&logger, &uninstallIndex, &steamIndex, appId, folderName, executables));
    }

    void installSteam() {
        pc.file("C:\\Steam\\steam.exe");
        pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "", "C:\\Steam\\steam.exe");
        pc.folder("D:\\Library");
        pc.file("C:\\Steam\\steamapps\\libraryfolders.vdf", "\"path\" \"D:\\\\Library\"\n");
    }

    /// The app 440 in the client's library.
    void installGame() {
        installSteam();
        pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
        pc.file("D:\\Library\\steamapps\\common\\Game\\game.exe");
    }

    /// The entry that the client writes.
    void addEntry(const QString& appId, const QString& folder, const QString& uninstaller = "steam uninstaller") {
        addProgram(pc, {"Steam App " + appId, "A game", folder, uninstaller});
    }
};

TEST_F(SteamFinderTest, FindsAGameByItsUninstallEntryWithoutTheClient) {
    pc.file("D:\\Library\\steamapps\\common\\Game\\bin\\game.exe");
    pc.file("D:\\Library\\steamapps\\common\\Game\\game.exe");
    addEntry("440", " D:\\Library\\steamapps\\common\\Game\t");
    EXPECT_EQ(find("440", "", {"bin\\game.exe", "missing.exe", "game.exe"}),
              startedBy("steam://launch/440", "D:\\Library\\steamapps\\common\\Game",
                        {"D:\\Library\\steamapps\\common\\Game\\bin\\game.exe",
                         "D:\\Library\\steamapps\\common\\Game\\game.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Steam: Found 440"));
}

TEST_F(SteamFinderTest, FindsAGameInALibrary) {
    installSteam();
    pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\Library\\steamapps\\common\\A Game\\bin\\game.exe");
    pc.file("D:\\Library\\steamapps\\common\\A Game\\game.exe");
    EXPECT_EQ(find("440", "A Game", {"missing.exe", "bin\\game.exe", "game.exe"}),
              startedBy("steam://launch/440", "D:/Library/steamapps/common/A Game",
                        {"D:/Library/steamapps/common/A Game\\bin\\game.exe",
                         "D:/Library/steamapps/common/A Game\\game.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Steam: Found 440"));
}

TEST_F(SteamFinderTest, TheUninstallEntryComesBeforeTheLibraries) {
    installGame();
    pc.file("E:\\Game\\game.exe");
    addEntry("440", "E:\\Game");
    EXPECT_TRUE(find("440", "Game", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "E:\\Game");
    EXPECT_EQ(pc.log("Quorvan.Finders.SteamGames"), "") << "the libraries are not even looked at";
}

TEST_F(SteamFinderTest, AnEntryWithoutAnUninstallerIsIgnored) {
    pc.file("E:\\Game\\game.exe");
    addEntry("440", "E:\\Game", "");
    EXPECT_EQ(find("440", "", {"game.exe"}), leftAlone());
}

TEST_F(SteamFinderTest, AnEntryThatLeadsNowhereIsPassedOver) {
    installGame();
    pc.folder("E:\\Empty");
    for (const char* gone : {"E:\\Gone", "E:\\Empty", "", "  "}) {
        addEntry("440", gone);
        EXPECT_TRUE(find("440", "Game", {"game.exe"})) << gone;
        EXPECT_EQ(location.installFolder, "D:/Library/steamapps/common/Game") << gone;
    }
}

TEST_F(SteamFinderTest, TheSecondEntryOfAKeyIsTriedAsWell) {
    pc.file("E:\\Game\\game.exe");
    addProgram(pc, {"Steam App 440", "Game", "E:\\Gone", "u.exe", Platform::RootKey::LocalMachine, View::view32});
    addProgram(pc, {"Steam App 440", "Game", "E:\\Game", "u.exe", Platform::RootKey::LocalMachine, View::view64});
    EXPECT_TRUE(find("440", "", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "E:\\Game");
}

TEST_F(SteamFinderTest, IdentifiersAreComparedAsText) {
    installGame();
    pc.file("E:\\Game\\game.exe");
    addEntry("440a", "E:\\Game");
    for (const char* id : {"0440", "44", "440 ", "440A", ""}) {
        EXPECT_EQ(find(id, "Game", {"game.exe"}), leftAlone()) << id;
    }
    EXPECT_TRUE(find("440a", "Game", {"game.exe"}));
    EXPECT_EQ(location.launchCommand, "steam://launch/440a");
}

TEST_F(SteamFinderTest, AnEmptyIdentifierMatchesAManifestWithoutOne) {
    installSteam();
    pc.file("D:\\Library\\steamapps\\appmanifest_.acf");
    pc.file("D:\\Library\\steamapps\\common\\Game\\game.exe");
    EXPECT_TRUE(find("", "Game", {"game.exe"}));
    EXPECT_EQ(location.launchCommand, "steam://launch/");
}

TEST_F(SteamFinderTest, ALibraryWithoutAnExecutableDoesNotStopTheSearch) {
    installSteam();
    pc.file("C:\\Steam\\steamapps\\appmanifest_440.acf");
    pc.folder("C:\\Steam\\steamapps\\common\\Game");
    pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\Library\\steamapps\\common\\Game\\game.exe");
    EXPECT_TRUE(find("440", "Game", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "D:/Library/steamapps/common/Game");
}

TEST_F(SteamFinderTest, WithoutAFolderNameTheLibrariesAreNotSearched) {
    installSteam();
    pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\Library\\steamapps\\common\\game.exe");
    EXPECT_EQ(find("440", "", {"game.exe"}), leftAlone());
    EXPECT_EQ(pc.log("Quorvan.Finders.SteamGames"), "") << "nor is their index built";
}

TEST_F(SteamFinderTest, AFailedSearchLeavesTheLastFolderTried) {
    installSteam();
    EXPECT_EQ(find("440", "Game", {"game.exe"}), leftAlone()) << "none was tried";

    addEntry("440", " E:\\Gone ");
    EXPECT_EQ(find("440", "Game", {"game.exe"}), failedIn("E:\\Gone"));

    pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
    EXPECT_EQ(find("440", "Game", {"game.exe"}), failedIn("D:/Library/steamapps/common/Game"));

    addEntry("441", "");
    addProgram(pc, {"Steam App 441", {}, " ", {}});
    EXPECT_EQ(find("441", "", {"tmp", "Windows"}), failedIn("")) << "which exist at the root of the drive";
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(SteamFinderTest, WithoutExecutablesNothingIsFound) {
    pc.folder("E:\\Game");
    addEntry("440", "E:\\Game");
    EXPECT_EQ(find("440", "Game", {}), failedIn("E:\\Game"));
}

TEST_F(SteamFinderTest, TheFolderNameMayBeAPath) {
    installSteam();
    pc.file("D:\\Library\\steamapps\\appmanifest_440.acf");
    pc.file("D:\\Library\\steamapps\\common\\Maker\\Game\\game.exe");
    EXPECT_TRUE(find("440", "Maker/Game", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "D:/Library/steamapps/common/Maker/Game");
    pc.file("E:\\Game\\game.exe");
    EXPECT_TRUE(find("440", "E:\\Game", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "E:\\Game") << "an absolute one stands for itself";
    EXPECT_EQ(location.executablePath, "E:\\Game\\game.exe");
}

} // namespace
