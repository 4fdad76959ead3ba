#pragma once

#include "common/AtOnce.h"
#include "core/GameLocation.h"
#include "core/IGameFinder.h"

#include <gtest/gtest.h>

#include <memory>

/// Has sixteen finders search on as many threads that begin together; expects each to find no game, but this folder.
inline void findFolderAtOnce(const std::function<std::unique_ptr<IGameFinder>()>& makeFinder, const QString& folder) {
    std::vector<std::unique_ptr<IGameFinder>> finders(16);
    for (std::unique_ptr<IGameFinder>& finder : finders) {
        finder = makeFinder();
    }
    std::atomic<std::size_t> next{0};
    callAtOnce([&] {
        GameLocation own;
        EXPECT_FALSE(finders[next++]->find(own));
        EXPECT_EQ(own.installFolder, folder);
    });
}
