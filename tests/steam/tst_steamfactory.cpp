#include "common/FindersAtOnce.h"
#include "common/PluginUnderTest.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/Locations.h"
#include "platform/Folders.h"
#include "platform/Registry.h"
#include "steam/MessageLog.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders";
const QString server = "bin\\win64\\vrserver.exe";

class SteamFactoryTest : public ::testing::Test {
protected:
    SteamFactoryTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.shellFolder(Platform::csidlCommonStartMenu, "C:\\All Users' Menu");
    }

    void installSteam() {
        pc.file("C:\\Steam\\steam.exe");
        pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "", "C:\\Steam\\steam.exe");
    }

    void registerMonitor(const QString& folder) {
        pc.value({Platform::RootKey::ClassesRoot, "vrmonitor\\Shell\\Open\\Command", 1}, "",
                 '"' + folder + "bin\\win64\\vrmonitor.exe\" \"%1\"");
    }

    TestPc pc;
    const MessageLog log;
    const PluginUnderTest plugin;
    GameLocation location = usedLocation();
};

TEST_F(SteamFactoryTest, TellsWhereTheSteamClientIs) {
    const auto factory = plugin.create();
    EXPECT_EQ(factory->steamExecutablePath(), "");
    EXPECT_EQ(factory->steamConfigFolder(), "");
    installSteam();
    EXPECT_EQ(factory->steamExecutablePath(), "C:\\Steam\\steam.exe") << "looked for anew";
    EXPECT_EQ(factory->steamConfigFolder(), "C:/Steam/config");
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: SteamExeFinder: Checking C:\\Steam\\steam.exe",
                                                  "A: SteamExeFinder: Checking C:\\Steam\\steam.exe"));
}

TEST_F(SteamFactoryTest, MakesSteamFinders) {
    installSteam();
    pc.file("C:\\Steam\\steamapps\\appmanifest_440.acf");
    pc.file("C:\\Steam\\steamapps\\common\\Game\\game.exe");
    const auto factory = plugin.create();
    const auto finder = factory->createSteamFinder("440", "Game", {"game.exe"});
    ASSERT_TRUE(finder);
    EXPECT_EQ(answerOf(*finder), startedBy("steam://launch/440", "C:/Steam/steamapps/common/Game",
                                           {"C:/Steam/steamapps/common/Game\\game.exe"}));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Steam: Found 440"));
    EXPECT_TRUE(factory->createSteamFinder("440", "Game", {"game.exe"})->find(location));
    EXPECT_EQ(pc.log("Quorvan.Finders.SteamGames").count("LOG CREATED"), 1) << "one index for all";
    EXPECT_EQ(pc.log("Quorvan.Finders.Uninstall").count("LOG CREATED"), 1);
}

TEST_F(SteamFactoryTest, FindersOnManyThreadsShareOneIndex) {
    installSteam();
    pc.file("C:\\Steam\\steamapps\\appmanifest_440.acf");
    const auto factory = plugin.create();
    findFolderAtOnce([&] { return factory->createSteamFinder("440", "Game", {"no such game.exe"}); },
                     "C:/Steam/steamapps/common/Game");
    EXPECT_EQ(pc.log("Quorvan.Finders.SteamGames").count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log("Quorvan.Finders.Uninstall").count("LOG CREATED"), 1);
}

TEST_F(SteamFactoryTest, WithoutSteamVrItsFolderIsEmpty) {
    EXPECT_EQ(plugin.create()->steamVrFolder(), "");
    installSteam();
    pc.file("C:\\Steam\\steamapps\\appmanifest_250820.acf");
    pc.folder("C:\\Steam\\steamapps\\common\\SteamVR");
    EXPECT_EQ(plugin.create()->steamVrFolder(), "");
}

TEST_F(SteamFactoryTest, FindsSteamVrInASteamLibraryFirst) {
    installSteam();
    pc.file("C:\\Steam\\steamapps\\appmanifest_250820.acf");
    pc.file("C:\\Steam\\steamapps\\common\\SteamVR\\" + server);
    pc.file("D:\\Uninstall\\" + server);
    addProgram(pc, {"SteamVR", "SteamVR", "D:\\Uninstall", {}});
    pc.file("D:\\Monitor\\" + server);
    registerMonitor("D:\\Monitor\\");
    EXPECT_EQ(plugin.create()->steamVrFolder(), "C:\\Steam\\steamapps\\common\\SteamVR");
    EXPECT_THAT(log.messages(), IsEmpty()) << "the monitor was not asked";
}

TEST_F(SteamFactoryTest, FindsSteamVrByItsSteamEntry) {
    pc.file("D:\\SteamVR\\" + server);
    addProgram(pc, {"Steam App 250820", "Steam's runtime", "D:\\SteamVR", "u.exe"});
    EXPECT_EQ(plugin.create()->steamVrFolder(), "D:\\SteamVR");
}

TEST_F(SteamFactoryTest, SteamVrsFolderIsAsQtCleansIt) {
    pc.file("D:\\SteamVR\\" + server);
    addProgram(pc, {"SteamVR", "SteamVR", "\\\\?\\D:\\SteamVR\\", {}});
    EXPECT_EQ(plugin.create()->steamVrFolder(), "D:\\SteamVR") << "without what switches Windows' own cleaning off";
}

TEST_F(SteamFactoryTest, SteamVrsFolderKeepsTheNameOfADevice) {
    pc.file("D:\\SteamVR\\" + server);
    addProgram(pc, {"SteamVR", "SteamVR", "\\\\.\\D:\\SteamVR\\", {}});
    EXPECT_EQ(plugin.create()->steamVrFolder(), "\\\\.\\D:\\SteamVR");
}

TEST_F(SteamFactoryTest, FindsSteamVrByItsUninstallEntrySecond) {
    pc.file("D:\\Uninstall\\" + server);
    addProgram(pc, {"X", "steamvr", "D:/Uninstall/./SteamVR/../", {}});
    pc.file("D:\\Monitor\\" + server);
    registerMonitor("D:\\Monitor\\");
    EXPECT_EQ(plugin.create()->steamVrFolder(), "D:\\Uninstall") << "clean, with native separators";
    EXPECT_THAT(log.messages(), IsEmpty());
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: Uninstall: Found " + uninstallKeyPath + "\\X: D:/Uninstall/./SteamVR/../\\" + server));
}

TEST_F(SteamFactoryTest, AnEntryWhoseNameOnlyContainsSteamVrIsAnother) {
    pc.file("D:\\Uninstall\\" + server);
    addProgram(pc, {"X", "SteamVR Performance Test", "D:\\Uninstall", {}});
    EXPECT_EQ(plugin.create()->steamVrFolder(), "");
}

TEST_F(SteamFactoryTest, FindsSteamVrByItsMonitorLast) {
    pc.file("D:\\Monitor\\SteamVR\\" + server);
    registerMonitor("D:\\Monitor\\SteamVR\\");
    EXPECT_EQ(plugin.create()->steamVrFolder(), "D:\\Monitor\\SteamVR") << "without the separator at its end";
    EXPECT_EQ(log.messages().size(), 2);
}

TEST_F(SteamFactoryTest, TheMonitorsFolderReplacesTheOneThatFailed) {
    addProgram(pc, {"SteamVR", "SteamVR", "E:\\Gone", {}});
    pc.file("D:\\Monitor\\" + server);
    registerMonitor("D:\\Monitor\\");
    EXPECT_EQ(plugin.create()->steamVrFolder(), "D:\\Monitor");
}

} // namespace
