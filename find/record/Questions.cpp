#include "find/record/Questions.h"

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"
#include "find/answers/Answers.h"
#include "find/catalogue/FinderTypes.h"
#include "find/cli/Progress.h"
#include "find/record/FolderListing.h"
#include "find/record/IndexEntries.h"
#include "find/record/InstalledPackages.h"
#include "find/record/Probe.h"
#include "find/record/UserChoices.h"

#include <memory>

namespace Host {

namespace {

constexpr int equals = 0;
constexpr int contains = 1;

/// Asks one question after the other; none of them finds anything.
class Questioner {
public:
    Questioner(IGameFinderFactory& factory, Progress& progress)
        : m_factory(factory)
        , m_progress(progress) {}

    void askForLists();
    void askForFolders(const std::vector<FinderEntry>& finders);
    void askForEntries(const IndexEntries& entries);
    void askForPackages();
    void askForUserChoices();

private:
    void ask(const QString& what, std::unique_ptr<IGameFinder> finder);

    IGameFinderFactory& m_factory;
    Progress& m_progress;
    QStringList m_probes{probeName()};
    int m_asked = 0;
};

void Questioner::ask(const QString& what, std::unique_ptr<IGameFinder> finder) {
    m_progress.step(++m_asked, 0, what);
    GameLocation location;
    if (finder) {
        finder->find(location);
    }
}

/// Every list is made, and those that can be gone through at once are.
void Questioner::askForLists() {
    const QString& probe = m_probes.constFirst();
    const QString everything;
    ask(QStringLiteral("installed programs"), m_factory.createUninstallFinder(everything, m_probes, contains));
    ask(QStringLiteral("Start menu"), m_factory.createStartMenuFinder(everything, m_probes, contains));
    ask(QStringLiteral("Games Explorer"), m_factory.createGameForWindowFinder(probe, m_probes));
    ask(QStringLiteral("Steam"), m_factory.createSteamFinder(probe, probe, m_probes));
    ask(QStringLiteral("Epic"), m_factory.createEpicStoreFinder(probe, m_probes, equals));
    ask(QStringLiteral("Oculus"), m_factory.createOculusStoreFinder(probe, m_probes, probe));
    ask(QStringLiteral("app packages"), m_factory.createUniversalAppFinder(probe));
}

void Questioner::askForFolders(const std::vector<FinderEntry>& finders) {
    static const FinderType* const folder = findFinderType(QStringLiteral("folder"));
    for (const FinderEntry& finder : finders) {
        askForFolders(finder.finders);
        if (finder.type == folder) {
            ask(finder.subject, m_factory.createFolderFinder(finder.subject, m_probes));
        }
    }
}

void Questioner::askForEntries(const IndexEntries& entries) {
    for (const IndexEntry& game : entries.of("GamesExplorer")) {
        ask(game.name, m_factory.createGameForWindowFinder(game.name, m_probes));
    }
    for (const IndexEntry& game : entries.of("EpicManifests")) {
        ask(game.name, m_factory.createEpicStoreFinder(game.name, m_probes, equals));
    }
    // One app of a library leads into the library, and there to the folder of every other.
    for (const IndexEntry& app : entries.onePerFolder("SteamLibraries")) {
        for (const QString& game : subFoldersOf(app.folder)) {
            ask(game, m_factory.createSteamFinder(app.name, game, m_probes));
        }
    }
    for (const IndexEntry& app : entries.onePerFolder("OculusLibraries")) {
        for (const QString& game : subFoldersOf(app.folder + QLatin1String("/../Software"))) {
            ask(game, m_factory.createOculusStoreFinder(app.name, m_probes, game));
        }
    }
}

void Questioner::askForPackages() {
    for (const QString& family : installedPackageFamilies()) {
        ask(family, m_factory.createUniversalAppFinder(family));
    }
}

void Questioner::askForUserChoices() {
    for (const QString& key : userChoiceKeys()) {
        ask(key, m_factory.createUserProvidedLocationFinder(key, m_probes));
    }
}

} // namespace

void askEverything(IGameFinderFactory& factory, const Catalogue& games, const ReadTrace& readTrace,
                   Progress& progress) {
    ask(factory, games, progress);
    Questioner questioner(factory, progress);
    questioner.askForLists();
    for (const Game& game : games) {
        questioner.askForFolders(game.finders);
    }
    questioner.askForEntries(IndexEntries(readTrace()));
    questioner.askForPackages();
    questioner.askForUserChoices();
}

} // namespace Host
