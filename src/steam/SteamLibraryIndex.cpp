#include "steam/SteamLibraryIndex.h"

#include "steam/SteamLibraryFolders.h"
#include "steam/SteamLocator.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"
#include "trace/ForeignFiles.h"

namespace {

/// The "steamapps" folders of all libraries of this client, whether they exist or not.
QStringList libraryFolders(const QString& steam) {
    const QString main = Paths::absoluteFolderOf(steam) + QLatin1String("/steamapps");
    QStringList folders{main};
    folders += parseLibraryFolders(main + QLatin1String("/") + ForeignFiles::SteamLibraryFolders::fileName);
    folders.removeDuplicates();
    return folders;
}

} // namespace

SteamLibraryIndex::SteamLibraryIndex()
    : Index(Trace::IndexName::steamLibraries) {}

std::vector<SteamAppEntry> SteamLibraryIndex::findByAppId(const QString& appId) {
    return built(m_appIds).find(appId);
}

void SteamLibraryIndex::build(std::list<SteamAppEntry>& entries) {
    Logger logger = Logger::create("Quorvan.Finders.SteamGames");
    const QString steam = findSteamExecutable(logger);
    if (steam.isEmpty()) {
        logger.logAlways("Steam.exe not found");
        return;
    }
    const QStringList folders = libraryFolders(steam);
    for (const QString& folder : folders) {
        read(folder, entries, logger);
    }
    if (entries.empty()) {
        logger.logAlways("No App ID");
    }
}

void SteamLibraryIndex::read(const QString& folder, std::list<SteamAppEntry>& entries, Logger& logger) {
    const QLatin1String prefix("appmanifest_");
    logger.logAlways("Library Folder: %ls", qUtf16Printable(folder));
    QStringList manifests = Files::names(folder, QStringLiteral(".acf"));
    const QString commonFolder = folder + QLatin1String("/common"); // one text for all entries
    m_appIds.reserve(static_cast<std::size_t>(manifests.size()));
    takeEach(std::move(manifests), [&](const QString& manifest) {
        if (!manifest.startsWith(prefix)) {
            return;
        }
        const SteamAppEntry entry{Paths::baseName(manifest, prefix.size()), commonFolder};
        add(entries, entry, entry.appId, entry.commonFolder, m_appIds.row(entry.appId, entry));
        logger.logAlways("  App ID: %ls", qUtf16Printable(entry.appId));
    });
}
