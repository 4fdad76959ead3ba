#include "Bare.h"
#include "Benchmarks.h"
#include "Figures.h"
#include "InstalledGames.h"
#include "Logs.h"

#include "catalogue/GamesExplorerIndex.h"
#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "platform/Folders.h"
#include "steam/SteamLibraryIndex.h"
#include "stores/EpicManifestIndex.h"
#include "stores/OculusLibraryIndex.h"

#include <optional>

namespace {

using Platform::RootKey;

/// Each returns the number of entries.
namespace Floors {

std::size_t uninstall() {
    std::size_t entries = 0;
    for (const quint32 view : {1U, 0U}) {
        for (const RootKey root : {RootKey::LocalMachine, RootKey::CurrentUser}) {
            entries += Bare::readSubKeys({root, InstalledGames::uninstallKey, view},
                                         {u"DisplayName", u"InstallLocation", u"UninstallString"});
        }
    }
    return entries;
}

std::size_t gamesExplorer() {
    std::size_t entries = 0;
    for (const quint32 view : {1U, 0U}) {
        entries += Bare::readSubKeys({RootKey::LocalMachine, InstalledGames::gamesExplorerKey, view},
                                     {u"Title", u"AppExePath", u"ConfigApplicationPath"});
    }
    return entries;
}

std::size_t startMenu() {
    return Bare::walk(Bare::shellFolder(Platform::csidlStartMenu)) +
           Bare::walk(Bare::shellFolder(Platform::csidlCommonStartMenu));
}

std::size_t steam() {
    const Bare::Text folder = InstalledGames::steamFolder;
    Bare::readKey({RootKey::ClassesRoot, u"steam\\Shell\\Open\\Command", 1}, {u""});
    Bare::exists(u"D:\\Steam\\steam.exe");
    Bare::exists(folder + u"\\libraryfolders.vdf");
    return Bare::list(folder).size();
}

std::size_t epic() {
    Bare::readKey({RootKey::CurrentUser, u"Software\\Epic Games\\EOS", 0}, {u"ModSdkMetadataDir"});
    const Bare::Text folder = InstalledGames::epicFolder;
    std::size_t entries = 0;
    for (const Bare::Text& name : Bare::list(folder)) {
        entries += Bare::read(folder + u'\\' + name) > 0 ? 1 : 0;
    }
    return entries;
}

std::size_t oculus() {
    const Bare::Text library = InstalledGames::oculusFolder;
    Bare::readSubKeys({RootKey::CurrentUser, u"Software\\Oculus VR, LLC\\Oculus\\Libraries", 0}, {u"Path"});
    Bare::volumes();
    Bare::exists(library + u"\\Software");
    Bare::exists(library + u"\\Manifests");
    return Bare::list(library + u"\\Manifests").size();
}

} // namespace Floors

// The characters that an entry holds.

int textOf(const UninstallEntry& entry) {
    return entry.keyPath.size() + entry.displayName.size() + entry.installLocation.size() +
           entry.uninstallString.size();
}

int textOf(const GamesExplorerEntry& entry) {
    return entry.keyName.size() + entry.title.size() + entry.appExePath.size() + entry.configApplicationPath.size();
}

int textOf(const QString& shortcut) {
    return shortcut.size();
}

int textOf(const SteamAppEntry& entry) {
    return entry.appId.size() + entry.commonFolder.size();
}

int textOf(const EpicAppEntry& entry) {
    return entry.AppName.size() + entry.LaunchExecutable.size() + entry.LaunchCommand.size() +
           entry.InstallLocation.size() + entry.DisplayName.size() + entry.CatalogNamespace.size() +
           entry.CatalogItemId.size();
}

int textOf(const OculusAppEntry& entry) {
    return entry.appId.size() + entry.manifestsFolder.size();
}

/// The most that is held while a list is made, against the text in it.
template <class Index>
void memory(const Figures& figures, const char* name) {
    Index index;
    const std::size_t peak = Benchmarks::peakMemory([&index] { index.entries(); });
    std::size_t text = 0;
    for (const auto& entry : index.entries()) {
        text += static_cast<std::size_t>(textOf(entry)) * sizeof(QChar);
    }
    if (peak > 0) {
        figures.number(QLatin1String(name) + QLatin1String(" memory"),
                       static_cast<double>(peak) / static_cast<double>(text), QStringLiteral("ratio"));
    }
}

/// `logger` is empty for a list that writes no log.
template <class Index>
void build(const Figures& figures, const char* name, const QString& logger, std::size_t (*floor)()) {
    std::optional<Index> index(std::in_place);
    const auto entries = static_cast<std::size_t>(index->entries().size());
    if (entries == 0 || floor() != entries) {
        qFatal("%s: the floor is not that of the build", name);
    }
    const std::vector<std::string> pieces = logger.isEmpty() ? std::vector<std::string>() : Logs::pieces(logger);
    const auto work = [&index] {
        index.emplace();
        index->entries();
    };
    const auto bareWork = [&] {
        floor();
        if (!logger.isEmpty()) {
            Bare::writeLog(logger.toStdString(), pieces);
        }
    };
    const auto before = [&] {
        index.reset();
        Logs::remove(logger);
    };
    before();
    memory<Index>(figures, name);
    before();
    figures.ratio(QLatin1String(name) + QLatin1String(" build"), work, bareWork, before);
}

} // namespace

void Benchmarks::builds(const Figures& figures, int keys, int files) {
    const Figures ofKeys = figures.of(keys);
    const Figures ofFiles = figures.of(files);
    build<UninstallIndex>(ofKeys, "uninstall", QStringLiteral("Quorvan.Finders.Uninstall"), Floors::uninstall);
    build<GamesExplorerIndex>(ofKeys, "games explorer", QStringLiteral("Quorvan.Finders.GameForWindow"),
                              Floors::gamesExplorer);
    build<StartMenuIndex>(ofFiles, "start menu", {}, Floors::startMenu);
    build<SteamLibraryIndex>(ofFiles, "steam", QStringLiteral("Quorvan.Finders.SteamGames"), Floors::steam);
    build<EpicManifestIndex>(ofFiles, "epic", QStringLiteral("Quorvan.Finders.EpicStore"), Floors::epic);
    build<OculusLibraryIndex>(ofFiles, "oculus", QStringLiteral("Quorvan.Finders.OculusStore"), Floors::oculus);
}
