#include "find/answers/UserChoice.h"

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"
#include "find/catalogue/FinderTypes.h"
#include "find/pc/AnsweringPc.h"

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

/// Finders in the order in which they are asked, without multi finders.
std::vector<FinderEntry> askedFor(const Game& game) {
    static const FinderType* const multi = findFinderType(QStringLiteral("multi"));
    std::vector<FinderEntry> asked;
    forEachFinder(game.finders, [&asked](const FinderEntry& finder) {
        if (finder.type != multi) {
            asked.push_back(finder);
        }
    });
    return asked;
}

bool asksForChoice(const FinderEntry& finder) {
    static const FinderType* const userProvided = findFinderType(QStringLiteral("userProvidedLocation"));
    return finder.type == userProvided;
}

bool asksForChoice(const FinderEntry& finder, const QString& key) {
    return asksForChoice(finder) && isSameUserChoice(finder.subject.trimmed(), key.trimmed());
}

/// All finders that ask for the user's choice under this key.
std::vector<FinderEntry> findersFor(const Catalogue& games, const QString& key) {
    std::vector<FinderEntry> finders;
    for (const Game& game : games) {
        for (const FinderEntry& finder : askedFor(game)) {
            if (asksForChoice(finder, key)) {
                finders.push_back(finder);
            }
        }
    }
    return finders;
}

} // namespace

bool hasKey(const Catalogue& games, const QString& key) {
    return !findersFor(games, key).empty();
}

QStringList executablesFor(const Catalogue& games, const QString& key) {
    QStringList executables;
    for (const FinderEntry& finder : findersFor(games, key)) {
        executables += finder.executables;
    }
    executables.removeDuplicates();
    return executables;
}

QStringList keysOf(const Catalogue& games) {
    QStringList keys;
    for (const Game& game : games) {
        for (const FinderEntry& finder : askedFor(game)) {
            if (asksForChoice(finder)) {
                keys.append(finder.subject.trimmed());
            }
        }
    }
    return keys;
}

std::vector<ShutOut> shutOutBy(const Catalogue& games, const QString& key) {
    std::vector<ShutOut> all;
    for (const Game& game : games) {
        std::vector<FinderEntry> asked = askedFor(game);
        const auto choice = std::find_if(asked.begin(), asked.end(),
                                         [&key](const FinderEntry& finder) { return asksForChoice(finder, key); });
        if (choice != asked.end() && std::next(choice) != asked.end()) {
            all.push_back({game.name, {std::next(choice), asked.end()}});
        }
    }
    return all;
}

UserChoice rememberChoice(IGameFinderFactory& factory, const Catalogue& games, const QString& key,
                          const QString& folder) {
    const QStringList executables = executablesFor(games, key);
    const std::unique_ptr<IGameFinder> finder = factory.createUserProvidedLocationFinder(key, executables);
    if (!finder) {
        return {};
    }
    finder->setUserLocation(folder);
    GameLocation location;
    const bool isThere = executables.isEmpty() || finder->find(location);
    return {finder->userLocation(), isThere ? QStringList() : executables, hasKey(games, key)};
}

std::optional<QString> forgetChoice(IGameFinderFactory& factory, const QString& key) {
    const std::unique_ptr<IGameFinder> finder = factory.createUserProvidedLocationFinder(key, {});
    if (!finder) {
        return std::nullopt;
    }
    const QString folder = finder->userLocation();
    finder->setUserLocation(QString());
    return finder->userLocation().isEmpty() ? std::make_optional(folder) : std::nullopt;
}

} // namespace Find
