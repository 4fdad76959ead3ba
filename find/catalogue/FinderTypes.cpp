#include "find/catalogue/FinderTypes.h"

#include "core/IGameFinderFactory.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace Host {

namespace {

using Factory = IGameFinderFactory;
using Entry = FinderEntry;

std::vector<FinderType> makeTypes() {
    return {
        {"uninstall",
         {{"displayName", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createUninstallFinder(e.subject, e.executables, e.matchMode); }},
        {"gameForWindow",
         {{"title", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createGameForWindowFinder(e.subject, e.executables); }},
        {"steam",
         {{"appId", &Entry::subject}, {"installFolderName", &Entry::folderName}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createSteamFinder(e.subject, e.folderName, e.executables); }},
        {"multi",
         {{"finders", &Entry::finders}},
         [](Factory& f, const Entry& e) { return makeMultiFinder(f, e.finders); }},
        {"startMenu",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createStartMenuFinder(e.subject, e.executables, e.matchMode); }},
        {"folder",
         {{"folder", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createFolderFinder(e.subject, e.executables); }},
        {"oculusStore",
         {{"appId", &Entry::subject}, {"executables", &Entry::executables}, {"softwareFolder", &Entry::folderName}},
         [](Factory& f, const Entry& e) { return f.createOculusStoreFinder(e.subject, e.executables, e.folderName); }},
        {"epicStore",
         {{"name", &Entry::subject}, {"executables", &Entry::executables}, {"matchMode", &Entry::matchMode}},
         [](Factory& f, const Entry& e) { return f.createEpicStoreFinder(e.subject, e.executables, e.matchMode); }},
        {"universalApp",
         {{"packageFamily", &Entry::subject}},
         [](Factory& f, const Entry& e) { return f.createUniversalAppFinder(e.subject); }},
        {"userProvidedLocation",
         {{"key", &Entry::subject}, {"executables", &Entry::executables}},
         [](Factory& f, const Entry& e) { return f.createUserProvidedLocationFinder(e.subject, e.executables); }},
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

} // namespace Host
