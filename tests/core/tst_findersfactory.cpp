#include "core/plugin/FactoryState.h"
#include "core/plugin/FindersFactory.h"

#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/Locations.h"
#include "core/ScriptedFinder.h"

#include <QDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <future>
#include <thread>

namespace {

using ::testing::ElementsAre;

const QString logName = "Quorvan.Finders";

class FindersFactoryTest : public ::testing::Test {
protected:
    static std::unique_ptr<IGameFinder> combine(IGameFinderFactory& factory, std::unique_ptr<IGameFinder> first,
                                                std::unique_ptr<IGameFinder> second) {
        return factory.createMultiFinder(std::move(first), std::move(second), nullptr, nullptr, nullptr, nullptr,
                                         nullptr, nullptr, nullptr, nullptr, nullptr);
    }

    TestPc pc;
    const PluginUnderTest plugin;
    GameLocation location = usedLocation();
};

TEST_F(FindersFactoryTest, CreateMakesAFactoryWhoseFolderFinderFindsAGame) {
    pc.file("D:\\Spiele\\Käferrennen\\bin\\win64\\kaefer.exe");
    const auto factory = plugin.create();
    const auto finder = factory->createFolderFinder("D:\\Spiele\\Käferrennen", {"bin\\win64\\kaefer.exe"});
    ASSERT_TRUE(finder);
    EXPECT_EQ(answerOf(*finder),
              foundIn("D:\\Spiele\\Käferrennen", {"D:\\Spiele\\Käferrennen\\bin\\win64\\kaefer.exe"}));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Folder: D:/Spiele/Käferrennen/bin\\win64\\kaefer.exe"));
}

TEST(PluginTest, WhatItFoundOutlivesIt) {
    TestPc pc;
    pc.file("D:\\Spiele\\Käferrennen\\kaefer.exe");
    GameLocation location;
    {
        const PluginUnderTest plugin;
        const auto factory = plugin.create();
        EXPECT_TRUE(factory->createFolderFinder("D:\\Spiele\\Käferrennen", {"kaefer.exe"})->find(location));
    }
    EXPECT_EQ(location.launchCommand, "D:\\Spiele\\Käferrennen\\kaefer.exe");
    EXPECT_EQ(location.executablePaths, QStringList{"D:\\Spiele\\Käferrennen\\kaefer.exe"});
}

TEST(PluginTest, AThreadThatAskedItMayOutliveIt) {
    const TestPc pc;
    std::promise<void> asked;
    std::promise<void> unloaded;
    std::thread thread;
    {
        const PluginUnderTest plugin;
        thread = std::thread([&] {
            GameLocation location;
            EXPECT_FALSE(plugin.create()->createUninstallFinder("Wal", {"wal.exe"}, 0)->find(location));
            asked.set_value();
            unloaded.get_future().wait();
        });
        asked.get_future().wait();
    }
    unloaded.set_value();
    thread.join();
}

TEST_F(FindersFactoryTest, ALogFileFramesTheFactorysLife) {
    {
        const auto factory = plugin.create();
        EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
        EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 0);
    }
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(FindersFactoryTest, NothingIsLookedUpWhenAFactoryIsMade) {
    const auto factory = plugin.create();
    EXPECT_THAT(QDir(pc.logFolder()).entryList(QDir::Files), ElementsAre(logName + ".log"))
        << "each index has a log of its own when it is built";
}

TEST_F(FindersFactoryTest, TwoFactoriesShareNothing) {
    pc.file("C:\\Games\\X\\a.exe");
    auto first = plugin.create();
    const auto second = plugin.create();
    const auto finder = second->createFolderFinder("C:\\Games\\X", {"a.exe"});
    first.reset();
    EXPECT_TRUE(finder->find(location));
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 2);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(FindersFactoryTest, OnlyTheFinderForTheUsersChoiceKeepsOne) {
    pc.file("D:\\X\\x.exe");
    const auto factory = plugin.create();
    std::vector<std::unique_ptr<IGameFinder>> finders;
    finders.push_back(factory->createUninstallFinder("X", {"x.exe"}, 0));
    finders.push_back(factory->createGameForWindowFinder("X", {"x.exe"}));
    finders.push_back(factory->createSteamFinder("1", "X", {"x.exe"}));
    finders.push_back(factory->createStartMenuFinder("X", {"x.exe"}, 0));
    finders.push_back(factory->createOculusStoreFinder("X", {"x.exe"}, "X"));
    finders.push_back(factory->createEpicStoreFinder("X", {"x.exe"}, 0));
    finders.push_back(factory->createUniversalAppFinder("X"));
    finders.push_back(factory->createFolderFinder("D:\\X", {"x.exe"}));
    for (std::size_t i = 0; i < finders.size(); ++i) {
        finders[i]->setUserLocation("D:\\Elsewhere");
        EXPECT_EQ(finders[i]->userLocation(), "") << i;
        EXPECT_FALSE(finders[i]->userLocation().isNull()) << i << ": empty, as an empty text is";
    }
    EXPECT_TRUE(finders.back()->find(location));
    EXPECT_EQ(location.installFolder, "D:\\X");
}

TEST_F(FindersFactoryTest, AMultiFinderOfElevenNullsFindsNothing) {
    const auto factory = plugin.create();
    const auto finder = combine(*factory, nullptr, nullptr);
    ASSERT_TRUE(finder);
    EXPECT_EQ(answerOf(*finder), leftAlone());
    EXPECT_EQ(finder->userLocation(), "");
}

TEST_F(FindersFactoryTest, AMultiFinderTriesFolderAfterFolder) {
    pc.folder("C:\\Games\\X");
    pc.file("D:\\Games\\X\\x.exe");
    const auto factory = plugin.create();
    const auto finder = combine(*factory, factory->createFolderFinder("C:\\Games\\X", {"x.exe"}),
                                factory->createFolderFinder("D:\\Games\\X", {"x.exe"}));
    EXPECT_TRUE(finder->find(location));
    EXPECT_EQ(location.installFolder, "D:\\Games\\X");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\Games\\X\\x.exe"));
}

TEST_F(FindersFactoryTest, AMultiFinderTakesTheHostsOwnFindersToo) {
    QStringList notes;
    const auto factory = plugin.create();
    std::unique_ptr<IGameFinder> own =
        std::make_unique<ScriptedFinder>("own", ScriptedFinder::Script{true, "D:\\Chosen", "D:\\Chosen"}, &notes);
    auto finder = combine(*factory, nullptr, std::move(own));
    EXPECT_TRUE(finder->find(location));
    EXPECT_EQ(finder->userLocation(), "D:\\Chosen");
    finder.reset();
    EXPECT_THAT(notes, ElementsAre("own find", "own destroyed"));
}

/// Notes which of its own operations the factory uses.
class NotingFactory : public Finders::FindersFactory {
public:
    std::unique_ptr<IGameFinder> createUninstallFinder(const QString& displayName, const QStringList& executables,
                                                       int matchMode) override {
        notes.append(QString("uninstall %1 %2 %3").arg(displayName, executables.join('|')).arg(matchMode));
        return std::make_unique<ScriptedFinder>("uninstall", ScriptedFinder::Script{}, &notes);
    }

    std::unique_ptr<IGameFinder> createSteamFinder(const QString& appId, const QString& installFolderName,
                                                   const QStringList& executables) override {
        notes.append(QString("steam %1 %2 %3").arg(appId, installFolderName, executables.join('|')));
        return std::make_unique<ScriptedFinder>("steam", ScriptedFinder::Script{true, "", steamVr}, &notes);
    }

    std::unique_ptr<IGameFinder>
    createMultiFinder(std::unique_ptr<IGameFinder>&& finder1, std::unique_ptr<IGameFinder>&& finder2,
                      std::unique_ptr<IGameFinder>&& finder3, std::unique_ptr<IGameFinder>&& finder4,
                      std::unique_ptr<IGameFinder>&& finder5, std::unique_ptr<IGameFinder>&& finder6,
                      std::unique_ptr<IGameFinder>&& finder7, std::unique_ptr<IGameFinder>&& finder8,
                      std::unique_ptr<IGameFinder>&& finder9, std::unique_ptr<IGameFinder>&& finder10,
                      std::unique_ptr<IGameFinder>&& finder11) override {
        const bool threeMembers = finder1 && finder2 && finder3 && !finder4 && !finder5 && !finder6 && !finder7 &&
                                  !finder8 && !finder9 && !finder10 && !finder11;
        notes.append(threeMembers ? "multi of three" : "multi of another number");
        return FindersFactory::createMultiFinder(std::move(finder1), std::move(finder2), std::move(finder3), nullptr,
                                                 nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    }

    QStringList notes;
    QString steamVr;
};

TEST_F(FindersFactoryTest, SteamVrIsLookedForThroughTheFactorysOwnOperations) {
    NotingFactory factory;
    factory.steamVr = " C:/Steam/common/./SteamVR/x/../ ";
    EXPECT_EQ(factory.steamVrFolder(), "C:\\Steam\\common\\SteamVR");
    EXPECT_THAT(factory.notes, ElementsAre("uninstall SteamVR bin\\win64\\vrserver.exe 0",
                                           "steam 250820 SteamVR bin\\win64\\vrserver.exe", "multi of three",
                                           "steam find", "steam destroyed", "uninstall destroyed"));
}

TEST(InterfaceTest, TheRecordsFieldsKeepTheirPlaces) {
    EXPECT_EQ(offsetof(GameLocation, launchCommand), 0U);
    EXPECT_EQ(offsetof(GameLocation, executablePath), 8U);
    EXPECT_EQ(offsetof(GameLocation, executablePaths), 16U);
    EXPECT_EQ(offsetof(GameLocation, installFolder), 24U);
    EXPECT_EQ(offsetof(GameLocation, hostFlag), 32U);
    EXPECT_EQ(sizeof(GameLocation), 40U);
}

TEST(FactoryStateTest, TheLoggerIsMadeLastAndGoesFirst) {
    const TestPc pc;
    const Finders::FactoryState state;
    // The parts of a struct lie in the order in which they are made, and go in the opposite one.
    const std::vector<const void*> parts{
        &state.uninstallIndex,     &state.gamesExplorerIndex, &state.startMenuIndex, &state.steamLibraryIndex,
        &state.oculusLibraryIndex, &state.epicManifestIndex,  &state.logger};
    EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end(), std::less<>()));
}

} // namespace
