#include "steam/SteamLibraryIndex.h"

#include "steam/SteamLibraryFolders.h"
#include "steam/SteamLocator.h"
#include "support/Files.h"
#include "support/ForeignFiles.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace {

/// The "steamapps" folders of all libraries, whether they exist or not. Empty when there is no Steam client.
QStringList libraryFolders(Logger& logger) {
    const QString steam = findSteamExecutable(logger);
    if (steam.isEmpty()) {
        logger.logAlways("Steam.exe not found");
        return {};
    }
    const QString main = Paths::absoluteFolderOf(steam) + QLatin1String("/steamapps");
    QStringList folders{main};
    folders += parseLibraryFolders(main + QLatin1String("/") + ForeignFiles::SteamLibraryFolders::fileName);
    folders.removeDuplicates();
    return folders;
}

void readApps(const QString& folder, std::list<SteamAppEntry>& entries, Logger& logger) {
    const QLatin1String prefix("appmanifest_");
    logger.logAlways("Library Folder: %ls", qUtf16Printable(folder));
    const QStringList manifests = Files::names(folder, QStringLiteral("*.acf"));
    for (const QString& manifest : manifests) {
        if (!manifest.startsWith(prefix)) {
            continue;
        }
        const QString baseName = manifest.left(manifest.indexOf(QLatin1Char('.')));
        entries.push_back({baseName.mid(prefix.size()), folder + QLatin1String("/common")});
        logger.logAlways("  App ID: %ls", qUtf16Printable(entries.back().appId));
    }
}

} // namespace

const std::list<SteamAppEntry>& SteamLibraryIndex::entries() {
    return catalogue().entries;
}

std::vector<const SteamAppEntry*> SteamLibraryIndex::findByAppId(const QString& appId) {
    return catalogue().appIds.find(appId);
}

const SteamLibraryIndex::Catalogue& SteamLibraryIndex::catalogue() {
    return m_catalogue.entries(build);
}

void SteamLibraryIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("SteamLibraries");
    Logger logger = Logger::create("Quorvan.Finders.SteamGames");
    const QStringList folders = libraryFolders(logger);
    for (const QString& folder : folders) {
        readApps(folder, catalogue.entries, logger);
    }
    if (catalogue.entries.empty()) {
        logger.logAlways("No App ID");
    }
    for (const SteamAppEntry& entry : catalogue.entries) {
        catalogue.appIds.add(entry.appId, entry);
        Trace::entry(entry.appId, entry.commonFolder);
    }
    section.setEntries(catalogue.entries.size());
}
