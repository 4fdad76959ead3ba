#pragma once

#include "find/catalogue/Catalogue.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class IGameFinderFactory;

namespace Find {

/// What the user's choice of a folder came to. Its texts may lie in the plug-in, so it must go before that is unloaded.
struct UserChoice {
    QString folder;          ///< the install folder that is remembered now; empty when that failed
    QStringList missing;     ///< the game's executables when none of them is in the folder
    bool isAskedFor = false; ///< whether a game of the catalogue has the key
};

/// Finders of a game that are not asked as long as the user's choice stands, as it ends the search.
struct ShutOut {
    QString game;
    std::vector<FinderEntry> finders; ///< none of them a multi finder
};

/// Remembers where the user has the game of this key. What its executables are says the catalogue; without any, the
/// folder is remembered as given.
UserChoice rememberChoice(IGameFinderFactory& factory, const Catalogue& games, const QString& key,
                          const QString& folder);

/// The folder that was remembered, empty when none was. No value when it still is.
std::optional<QString> forgetChoice(IGameFinderFactory& factory, const QString& key);

/// Whom a choice under this key shuts out, game by game.
std::vector<ShutOut> shutOutBy(const Catalogue& games, const QString& key);

/// The keys of all finders in the catalogue that ask for the user's choice.
QStringList keysOf(const Catalogue& games);

/// Whether a finder in the catalogue asks for the user's choice under this key.
bool hasKey(const Catalogue& games, const QString& key);

/// The executables of all finders in the catalogue that ask for the user's choice under this key, each once.
QStringList executablesFor(const Catalogue& games, const QString& key);

} // namespace Find
