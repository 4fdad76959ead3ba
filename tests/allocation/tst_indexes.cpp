#include "allocation/FailingAllocation.h"
#include "allocation/SystemMemory.h"
#include "catalogue/GamesExplorerIndex.h"
#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "steam/SteamLibraryIndex.h"
#include "stores/EpicManifestIndex.h"
#include "stores/OculusLibraryIndex.h"

#include "common/EpicLauncher.h"
#include "common/Games.h"
#include "common/OculusStore.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>

namespace {

/// A PC with three entries for each index.
class IndexesWithoutMemoryTest : public ::testing::Test {
protected:
    IndexesWithoutMemoryTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "", "C:\\Steam\\steam.exe");
        pc.file("C:\\Steam\\steam.exe");
        makeOculusFolders(pc, "D:\\Apps");
        addOculusLibrary(pc, "{1}", "D:\\Apps");
        for (const QString number : {"1", "2", "3"}) {
            addProgram(pc, {number, "Game " + number, "C:\\X", {}});
            addGame(pc, {number, "Game " + number, "C:\\X\\x.exe", "C:\\X"});
            addEpicApp(pc, number + ".item", {number, "Game " + number, "C:\\X"});
            pc.file("C:\\Menu\\Game " + number + ".lnk");
            pc.file("C:\\Steam\\steamapps\\appmanifest_" + number + ".acf");
            pc.file("D:\\Apps\\Manifests\\" + number + ".json.mini");
        }
    }

    /// Builds an index with its first, second, third … allocation failing, until it makes no more of them. After each,
    /// `isFound` must hold for all that the index then lists, which is never more than is listed with memory.
    template <class Index, class IsFound>
    static void failEachAllocation(IsFound isFound) {
        Index whole;
        ASSERT_EQ(whole.entries().size(), static_cast<decltype(whole.entries().size())>(3));
        int parts = 0;
        for (int countdown = 0;; ++countdown) {
            Index index;
            if (!failsToBuild(index, countdown)) {
                break;
            }
            const auto& entries = index.entries();
            ASSERT_LE(entries.size(), whole.entries().size());
            parts += !entries.empty() && entries.size() < whole.entries().size() ? 1 : 0;
            for (const auto& entry : entries) {
                ASSERT_TRUE(isFound(index, entry)) << "after allocation " << countdown;
            }
        }
        EXPECT_GT(parts, 0) << "some build has ended half-way";
        EXPECT_TRUE(FailingAllocation::nothingLeaked());
    }

    /// False when the build made no more allocations than it was granted.
    template <class Index>
    static bool failsToBuild(Index& index, int countdown) {
        bool hasFailed = false;
        SystemMemory::run([&] {
            const FailingAllocation failing(countdown);
            try {
                index.entries();
            } catch (const std::bad_alloc&) {
            }
            hasFailed = failing.hasFailed();
        });
        return hasFailed;
    }

    TestPc pc;
};

TEST_F(IndexesWithoutMemoryTest, WhatTheUninstallIndexHasIsFoundByNameAndByKey) {
    failEachAllocation<UninstallIndex>([](UninstallIndex& index, const UninstallEntry& entry) {
        return index.findByName(entry.displayName, MatchMode::equals).size() == 1 &&
               index.findByName(entry.displayName, MatchMode::contains).size() == 1 &&
               index.findByName("game", MatchMode::contains).size() == index.entries().size() &&
               index.findByKeyPath(entry.keyPath).size() == 1;
    });
}

TEST_F(IndexesWithoutMemoryTest, WhatTheGamesExplorerIndexHasIsFound) {
    failEachAllocation<GamesExplorerIndex>([](GamesExplorerIndex& index, const GamesExplorerEntry& entry) {
        return index.findByTitle(entry.title).size() == 1;
    });
}

TEST_F(IndexesWithoutMemoryTest, WhatTheStartMenuIndexHasIsFound) {
    failEachAllocation<StartMenuIndex>([](StartMenuIndex& index, const QString& shortcut) {
        const auto found = index.findByName("game", MatchMode::contains);
        return std::count(found.begin(), found.end(), shortcut) == 1;
    });
}

TEST_F(IndexesWithoutMemoryTest, WhatTheSteamLibraryIndexHasIsFound) {
    failEachAllocation<SteamLibraryIndex>([](SteamLibraryIndex& index, const SteamAppEntry& entry) {
        return index.findByAppId(entry.appId).size() == 1;
    });
}

TEST_F(IndexesWithoutMemoryTest, WhatTheOculusLibraryIndexHasIsFound) {
    failEachAllocation<OculusLibraryIndex>([](OculusLibraryIndex& index, const OculusAppEntry& entry) {
        return index.findByAppId(entry.appId).size() == 1;
    });
}

TEST_F(IndexesWithoutMemoryTest, WhatTheEpicManifestIndexHasIsFound) {
    failEachAllocation<EpicManifestIndex>([](EpicManifestIndex& index, const EpicAppEntry& entry) {
        return index.findByName(entry.DisplayName, MatchMode::equals).size() == 1;
    });
}

} // namespace
