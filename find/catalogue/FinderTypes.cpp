#include "find/catalogue/FinderTypes.h"

#include "core/IGameFinderFactory.h"
#include "find/catalogue/Inventory.h"
#include "find/pc/AnsweringPc.h"
#include "trace/Events.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace Find {

namespace {

using Factory = IGameFinderFactory;
using Entry = FinderEntry;
namespace IndexName = Trace::IndexName;

FinderEntry entryOf(const QString& subject, const QString& folderName = {}, int matchMode = 0) {
    FinderEntry entry;
    entry.subject = subject;
    entry.folderName = folderName;
    entry.matchMode = matchMode;
    return entry;
}

std::vector<FinderEntry> entriesOf(const QStringList& subjects) {
    std::vector<FinderEntry> entries;
    for (const QString& subject : subjects) {
        entries.push_back(entryOf(subject));
    }
    return entries;
}

/// Nothing but what every finder is asked.
std::vector<FinderEntry> noQuestions(const Inventory& /*inventory*/) {
    return {};
}

/// One question that goes through the whole list: every name contains an empty one.
std::vector<FinderEntry> anyName(const Inventory& /*inventory*/) {
    constexpr int contains = 1;
    return {entryOf(QString(), {}, contains)};
}

std::vector<FinderEntry> eachOf(const Inventory& inventory, const char* list) {
    std::vector<FinderEntry> entries;
    for (const IndexEntry& game : inventory.lists.of(list)) {
        entries.push_back(entryOf(game.name));
    }
    return entries;
}

/// One app of a library leads into the library, and there to the folder of every other.
std::vector<FinderEntry> eachFolderOf(const Inventory& inventory, const char* list, const QString& gamesBeside) {
    std::vector<FinderEntry> entries;
    for (const IndexEntry& app : inventory.lists.onePerFolder(list)) {
        const QStringList games = subFoldersOf(app.folder + gamesBeside);
        for (const QString& game : games) {
            entries.push_back(entryOf(app.name, game));
        }
    }
    return entries;
}

std::vector<FinderEntry> catalogueFolders(const Inventory& inventory) {
    static const FinderType* const folder = findFinderType(QStringLiteral("folder"));
    std::vector<FinderEntry> entries;
    for (const FinderEntry& entry : inventory.catalogue) {
        if (entry.type == folder) {
            entries.push_back(entryOf(entry.subject));
        }
    }
    return entries;
}

std::vector<FinderType> makeTypes() {
    return {
        {"uninstall",
         "createUninstallFinder",
         {{"displayName", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createUninstallFinder(e.subject, e.executables, e.matchMode); },
         anyName},
        {"gameForWindow",
         "createGameForWindowFinder",
         {{"title", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createGameForWindowFinder(e.subject, e.executables); },
         [](const Inventory& i) { return eachOf(i, IndexName::gamesExplorer); }},
        {"steam",
         "createSteamFinder",
         {{"appId", &Entry::subject}, {"installFolderName", &Entry::folderName}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createSteamFinder(e.subject, e.folderName, e.executables); },
         [](const Inventory& i) { return eachFolderOf(i, IndexName::steamLibraries, {}); }},
        {"multi",
         "createMultiFinder",
         {{"finders", &Entry::finders}},
         [](Factory& f, const Entry& e) { return makeMultiFinder(f, e.finders); },
         noQuestions},
        {"startMenu",
         "createStartMenuFinder",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createStartMenuFinder(e.subject, e.executables, e.matchMode); },
         anyName},
        {"folder",
         "createFolderFinder",
         {{"folder", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createFolderFinder(e.subject, e.executables); },
         catalogueFolders},
        {"oculusStore",
         "createOculusStoreFinder",
         {{"appId", &Entry::subject}, {"executables", &Entry::executables}, {"softwareFolder", &Entry::folderName}},
         [](Factory& f, const Entry& e) { return f.createOculusStoreFinder(e.subject, e.executables, e.folderName); },
         [](const Inventory& i) {
             return eachFolderOf(i, IndexName::oculusLibraries, QStringLiteral("/../Software"));
         }},
        {"epicStore",
         "createEpicStoreFinder",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createEpicStoreFinder(e.subject, e.executables, e.matchMode); },
         [](const Inventory& i) { return eachOf(i, IndexName::epicManifests); }},
        {"universalApp",
         "createUniversalAppFinder",
         {{"packageFamily", &Entry::subject}},
         [](Factory& f, const Entry& e) { return f.createUniversalAppFinder(e.subject); },
         [](const Inventory& i) { return entriesOf(i.packageFamilies); }},
        {"userProvidedLocation",
         "createUserProvidedLocationFinder",
         {{"key", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createUserProvidedLocationFinder(e.subject, e.executables); },
         [](const Inventory& i) { return entriesOf(i.userChoiceKeys); }},
    };
}

} // namespace

const std::vector<FinderType>& finderTypes() {
    static const std::vector<FinderType> types = makeTypes();
    return types;
}

const FinderType* findFinderType(const QString& name) {
    const std::vector<FinderType>& types = finderTypes();
    const auto found = std::find_if(types.begin(), types.end(),
                                    [&](const FinderType& type) { return name == QLatin1String(type.name); });
    return found != types.end() ? &*found : nullptr;
}

std::unique_ptr<IGameFinder> makeMultiFinder(IGameFinderFactory& factory, const std::vector<FinderEntry>& entries) {
    std::array<std::unique_ptr<IGameFinder>, mostFinders> f;
    for (std::size_t i = 0; i < std::min(entries.size(), f.size()); ++i) {
        f[i] = entries[i].type->make(factory, entries[i]);
    }
    return factory.createMultiFinder(std::move(f[0]), std::move(f[1]), std::move(f[2]), std::move(f[3]),
                                     std::move(f[4]), std::move(f[5]), std::move(f[6]), std::move(f[7]),
                                     std::move(f[8]), std::move(f[9]), std::move(f[10]));
}

} // namespace Find
