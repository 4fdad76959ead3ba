#pragma once

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
#include "common/TestPc.h"
#include "platform/Folders.h"

#include <gtest/gtest.h>

using EveryIndex = ::testing::Types<UninstallIndex, GamesExplorerIndex, StartMenuIndex, SteamLibraryIndex,
                                    OculusLibraryIndex, EpicManifestIndex>;

/// "(7)", which is a part of no other game's name.
inline QString gameNamed(int number) {
    return QString("(%1)").arg(number);
}

/// Puts a game where every index has it.
inline void installForEveryIndex(TestPc& pc, const QString& game) {
    addProgram(pc, {game, game, "C:\\X", {}});
    addGame(pc, {game, game, "C:\\X\\x.exe", "C:\\X"});
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.file("C:\\Menu\\" + game + ".lnk");
    pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "", "C:\\Steam\\steam.exe");
    pc.file("C:\\Steam\\steam.exe");
    pc.file("C:\\Steam\\steamapps\\appmanifest_" + game + ".acf");
    makeOculusFolders(pc, "D:\\Apps");
    addOculusLibrary(pc, "{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Manifests\\" + game + ".json.mini");
    addEpicApp(pc, game + ".item", {game, game, "C:\\X"});
}

// How often an index has a game, which is the same in all ways to look it up.

template <class Index>
int foundByName(Index& index, const QString& game) {
    const auto count = index.findByName(game, MatchMode::equals).size();
    EXPECT_EQ(index.findByName(game, MatchMode::contains).size(), count);
    return static_cast<int>(count);
}

inline int found(UninstallIndex& index, const QString& game) {
    const int count = static_cast<int>(index.findByKeyPath(uninstallKeyPath + '\\' + game).size());
    EXPECT_EQ(foundByName(index, game), count);
    return count;
}

inline int found(GamesExplorerIndex& index, const QString& game) {
    return static_cast<int>(index.findByTitle(game).size());
}

inline int found(StartMenuIndex& index, const QString& game) {
    return foundByName(index, game);
}

inline int found(SteamLibraryIndex& index, const QString& game) {
    return static_cast<int>(index.findByAppId(game).size());
}

inline int found(OculusLibraryIndex& index, const QString& game) {
    return static_cast<int>(index.findByAppId(game).size());
}

inline int found(EpicManifestIndex& index, const QString& game) {
    return foundByName(index, game);
}
