#pragma once

#include "core/GameLocation.h"
#include "find/catalogue/Catalogue.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class IGameFinderFactory;

namespace Find {

class Progress;

struct GameAnswer {
    QString name;
    bool found = false;
    GameLocation location; ///< empty when the game was not found
};

struct RuntimeAnswer {
    QString title;
    QString key; ///< the factory's operation that gave the answer
    bool isList = false;
    QStringList values; ///< empty when not found; at most one value unless it is a list
};

/// What the plug-in said. Its texts may lie in the plug-in, so it must go before that is unloaded.
struct Answers {
    std::vector<GameAnswer> games;
    std::vector<RuntimeAnswer> runtimes;

    bool allGamesFound() const;
};

/// Asks for one game. Its finder is gone afterwards.
GameAnswer askForGame(IGameFinderFactory& factory, const Game& game);

/// Asks for every game, in order, and has `take` take each answer before the next game is asked for.
void askForGames(IGameFinderFactory& factory, const Catalogue& games, Progress& progress,
                 const std::function<void(GameAnswer&)>& take);

std::vector<RuntimeAnswer> askForRuntimes(IGameFinderFactory& factory);

/// Asks for every game, in order, and for the runtimes. Every finder is gone afterwards.
Answers ask(IGameFinderFactory& factory, const Catalogue& games, Progress& progress);

} // namespace Find
