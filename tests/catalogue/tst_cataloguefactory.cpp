#include "common/FindersAtOnce.h"
#include "common/PluginUnderTest.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/Locations.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

const QString logName = "Quorvan.Finders";

class CatalogueFactoryTest : public ::testing::Test {
protected:
    TestPc pc;
    const PluginUnderTest plugin;
    GameLocation location = usedLocation();
};

TEST_F(CatalogueFactoryTest, MakesUninstallFinders) {
    pc.file("C:\\Games\\X\\game.exe");
    addProgram(pc, {"X_is1", "X, the game", "C:\\Games\\X", {}});
    const auto factory = plugin.create();
    EXPECT_FALSE(factory->createUninstallFinder("the game", {"game.exe"}, 0)->find(location));
    EXPECT_TRUE(factory->createUninstallFinder("the game", {"game.exe"}, 1)->find(location));
    EXPECT_EQ(location.launchCommand, "C:\\Games\\X\\game.exe");
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: Uninstall: Found " + uninstallKeyPath + "\\X_is1: C:\\Games\\X\\game.exe"));
    EXPECT_EQ(pc.log("Quorvan.Finders.Uninstall").count("LOG CREATED"), 1) << "one index for all";
}

TEST_F(CatalogueFactoryTest, MakesStartMenuFinders) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.file("C:\\Games\\X\\game.exe");
    pc.shortcut("C:\\Menu\\X, the game.lnk", "C:\\Games\\X\\game.exe");
    const auto factory = plugin.create();
    EXPECT_FALSE(factory->createStartMenuFinder("the game", {"game.exe"}, 0)->find(location));
    EXPECT_EQ(location, usedLocation());
    EXPECT_TRUE(factory->createStartMenuFinder("the game", {"game.exe"}, 1)->find(location));
    EXPECT_EQ(location.launchCommand, "C:/Games/X/game.exe");
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: StartMenu: Found C:/Games/X/game.exe"));
}

TEST_F(CatalogueFactoryTest, WhatIsInstalledLaterIsSeenByANewFactory) {
    pc.file("C:\\Games\\X\\game.exe");
    const auto factory = plugin.create();
    EXPECT_FALSE(factory->createUninstallFinder("X", {"game.exe"}, 0)->find(location));
    addProgram(pc, {"X", "X", "C:\\Games\\X", {}});
    EXPECT_FALSE(factory->createUninstallFinder("X", {"game.exe"}, 0)->find(location));
    EXPECT_TRUE(plugin.create()->createUninstallFinder("X", {"game.exe"}, 0)->find(location));
}

TEST_F(CatalogueFactoryTest, FindersOnManyThreadsShareOneIndex) {
    addProgram(pc, {"X", "X", "C:\\Games\\X", {}});
    const auto factory = plugin.create();
    findFolderAtOnce([&] { return factory->createUninstallFinder("X", {"no such game.exe"}, 0); }, "C:\\Games\\X");
    EXPECT_EQ(pc.log("Quorvan.Finders.Uninstall").count("LOG CREATED"), 1);
}

} // namespace
