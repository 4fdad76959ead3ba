#include "find/answers/UserChoice.h"

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"
#include "find/catalogue/FinderTypes.h"

#include <functional>

namespace Find {

namespace {

using Visit = std::function<void(const FinderEntry&)>;

/// Shows all finders that ask for the user's choice under this key.
void visitFinders(const std::vector<FinderEntry>& finders, const QString& key, const Visit& visit) {
    static const FinderType* const userProvided = findFinderType(QStringLiteral("userProvidedLocation"));
    for (const FinderEntry& finder : finders) {
        visitFinders(finder.finders, key, visit);
        if (finder.type == userProvided && finder.subject.trimmed() == key) {
            visit(finder);
        }
    }
}

void visitFinders(const Catalogue& games, const QString& key, const Visit& visit) {
    for (const Game& game : games) {
        visitFinders(game.finders, key.trimmed(), visit);
    }
}

} // namespace

bool hasKey(const Catalogue& games, const QString& key) {
    bool hasIt = false;
    visitFinders(games, key, [&](const FinderEntry&) { hasIt = true; });
    return hasIt;
}

QStringList executablesFor(const Catalogue& games, const QString& key) {
    QStringList executables;
    visitFinders(games, key, [&](const FinderEntry& finder) { executables += finder.executables; });
    executables.removeDuplicates();
    return executables;
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

bool forgetChoice(IGameFinderFactory& factory, const QString& key) {
    const std::unique_ptr<IGameFinder> finder = factory.createUserProvidedLocationFinder(key, {});
    if (!finder) {
        return false;
    }
    finder->setUserLocation(QString());
    return finder->userLocation().isEmpty();
}

} // namespace Find
