#include "find/catalogue/FinderTypes.h"

#include "core/IGameFinderFactory.h"
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
std::vector<FinderEntry> noQuestions(const FinderType& /*type*/, const Inventory& /*inventory*/) {
    return {};
}

/// One question that goes through the whole list: every name contains an empty one.
std::vector<FinderEntry> anyName(const FinderType& /*type*/, const Inventory& /*inventory*/) {
    constexpr int contains = 1;
    return {entryOf(QString(), {}, contains)};
}

std::vector<FinderEntry> eachName(const FinderType& type, const Inventory& inventory) {
    std::vector<FinderEntry> entries;
    for (const InstalledEntry& game : distinctEntries(inventory.installed, type, &InstalledEntry::name)) {
        entries.push_back(entryOf(game.name));
    }
    return entries;
}

/// One app of a library leads into the library, and there to the folder of every other.
std::vector<FinderEntry> eachFolderIn(const FinderType& type, const Inventory& inventory, const QString& gamesBeside) {
    std::vector<FinderEntry> entries;
    for (const InstalledEntry& app : distinctEntries(inventory.installed, type, &InstalledEntry::place)) {
        const QStringList games = subFoldersOf(app.place + gamesBeside);
        for (const QString& game : games) {
            entries.push_back(entryOf(app.name, game));
        }
    }
    return entries;
}

std::vector<FinderEntry> eachFolder(const FinderType& type, const Inventory& inventory) {
    return eachFolderIn(type, inventory, {});
}

std::vector<FinderEntry> eachSoftwareFolder(const FinderType& type, const Inventory& inventory) {
    return eachFolderIn(type, inventory, QStringLiteral("/../Software"));
}

std::vector<FinderEntry> catalogueFolders(const FinderType& type, const Inventory& inventory) {
    std::vector<FinderEntry> entries;
    for (const FinderEntry& entry : inventory.catalogue) {
        if (entry.type == &type) {
            entries.push_back(entryOf(entry.subject));
        }
    }
    return entries;
}

std::vector<FinderEntry> eachPackage(const FinderType& /*type*/, const Inventory& inventory) {
    return entriesOf(inventory.packageFamilies);
}

std::vector<FinderEntry> eachUserChoice(const FinderType& /*type*/, const Inventory& inventory) {
    return entriesOf(inventory.userChoiceKeys);
}

std::vector<FinderType> makeTypes() {
    return {
        {"uninstall",
         "createUninstallFinder",
         IndexName::uninstall,
         "Uninstall registry",
         {{"displayName", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createUninstallFinder(e.subject, e.executables, e.matchMode); },
         anyName},
        {"gameForWindow",
         "createGameForWindowFinder",
         IndexName::gamesExplorer,
         "Games Explorer",
         {{"title", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createGameForWindowFinder(e.subject, e.executables); },
         eachName},
        {"steam",
         "createSteamFinder",
         IndexName::steamLibraries,
         "Steam",
         {{"appId", &Entry::subject}, {"installFolderName", &Entry::folderName}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createSteamFinder(e.subject, e.folderName, e.executables); },
         eachFolder},
        {"multi",
         "createMultiFinder",
         "",
         "",
         {{"finders", &Entry::finders}},
         [](Factory& f, const Entry& e) { return makeMultiFinder(f, e.finders); },
         noQuestions},
        {"startMenu",
         "createStartMenuFinder",
         IndexName::startMenu,
         "Start menu",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createStartMenuFinder(e.subject, e.executables, e.matchMode); },
         anyName},
        {"folder",
         "createFolderFinder",
         "",
         "",
         {{"folder", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createFolderFinder(e.subject, e.executables); },
         catalogueFolders},
        {"oculusStore",
         "createOculusStoreFinder",
         IndexName::oculusLibraries,
         "Oculus",
         {{"appId", &Entry::subject}, {"executables", &Entry::executables}, {"softwareFolder", &Entry::folderName}},
         [](Factory& f, const Entry& e) { return f.createOculusStoreFinder(e.subject, e.executables, e.folderName); },
         eachSoftwareFolder},
        {"epicStore",
         "createEpicStoreFinder",
         IndexName::epicManifests,
         "Epic launcher",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createEpicStoreFinder(e.subject, e.executables, e.matchMode); },
         eachName},
        {"universalApp",
         "createUniversalAppFinder",
         "",
         "App packages",
         {{"packageFamily", &Entry::subject}},
         [](Factory& f, const Entry& e) { return f.createUniversalAppFinder(e.subject); },
         eachPackage},
        {"userProvidedLocation",
         "createUserProvidedLocationFinder",
         "",
         "User's choices",
         {{"key", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createUserProvidedLocationFinder(e.subject, e.executables); },
         eachUserChoice},
    };
}

const FinderType* typeWhose(const char* FinderType::*text, const QString& is) {
    const std::vector<FinderType>& types = finderTypes();
    const auto found = std::find_if(types.begin(), types.end(),
                                    [&](const FinderType& type) { return is == QLatin1String(type.*text); });
    return found != types.end() ? &*found : nullptr;
}

} // namespace

const std::vector<FinderType>& finderTypes() {
    static const std::vector<FinderType> types = makeTypes();
    return types;
}

const FinderType* findFinderType(const QString& name) {
    return typeWhose(&FinderType::name, name);
}

const FinderType* finderTypeOfList(const QString& index) {
    return index.isEmpty() ? nullptr : typeWhose(&FinderType::index, index);
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
