#pragma once

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"

#include <QString>

#include <memory>
#include <vector>

class TestPc;

/// What one finder answers.
struct FinderAnswer {
    bool found = false;
    GameLocation location;
    QString userLocation;
};

bool operator==(const FinderAnswer& left, const FinderAnswer& right);
void PrintTo(const FinderAnswer& answer, std::ostream* stream);

/// Installs the games 0 to `count` - 1, each for every kind of finder but that of app packages, which Wine has not.
void installForEveryFinder(TestPc& pc, int count);

/// One finder of each kind for this game, and of each way in which names are compared; last a multi finder, of which
/// the last finder finds it.
std::vector<std::unique_ptr<IGameFinder>> makeEveryFinder(IGameFinderFactory& factory, int game);

FinderAnswer ask(IGameFinder& finder);

/// What makeEveryFinder()'s answer, one after the other.
std::vector<FinderAnswer> askEveryFinder(IGameFinderFactory& factory, int game);

/// What the factory answers by itself, slot after slot.
std::vector<QString> askFactory(IGameFinderFactory& factory);
