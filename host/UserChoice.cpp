#include "host/UserChoice.h"

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"
#include "host/FinderTypes.h"

namespace Host {

namespace {

void collectExecutables(const std::vector<FinderEntry>& finders, const QString& key, QStringList& executables) {
    static const FinderType* const userProvided = findFinderType(QStringLiteral("userProvidedLocation"));
    for (const FinderEntry& finder : finders) {
        collectExecutables(finder.finders, key, executables);
        if (finder.type == userProvided && finder.subject.trimmed() == key) {
            executables += finder.executables;
        }
    }
}

} // namespace

QStringList executablesFor(const Catalogue& games, const QString& key) {
    QStringList executables;
    for (const Game& game : games) {
        collectExecutables(game.finders, key.trimmed(), executables);
    }
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
    return {finder->userLocation(), isThere ? QStringList() : executables};
}

bool forgetChoice(IGameFinderFactory& factory, const QString& key) {
    const std::unique_ptr<IGameFinder> finder = factory.createUserProvidedLocationFinder(key, {});
    if (!finder) {
        return false;
    }
    finder->setUserLocation(QString());
    return finder->userLocation().isEmpty();
}

} // namespace Host
