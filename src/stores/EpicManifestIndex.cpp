#include "stores/EpicManifestIndex.h"

#include "platform/Folders.h"
#include "stores/EpicManifest.h"
#include "support/Files.h"
#include "support/KnownFolders.h"
#include "support/Logger.h"
#include "support/RegistryKey.h"
#include "support/Trace.h"

#include <QDir>

#include <optional>

namespace {

/// What the launcher registers for other programs to find its manifests.
constexpr RegistrySource registeredFolder{View::view64, Hive::currentUser, u"Software\\Epic Games\\EOS",
                                          u"ModSdkMetadataDir"};

/// A thousand times what the launcher's own have, so that no file takes all memory.
constexpr qint64 largestManifest = qint64{16} * 1024 * 1024;

QString manifestFolder() {
    const QString registered = readRegistryString(registeredFolder);
    if (!registered.isEmpty()) {
        return registered;
    }
    return knownFolderPath(Platform::csidlCommonAppData) + QLatin1String("/Epic/EpicGamesLauncher/Data/Manifests");
}

} // namespace

EpicManifestIndex::EpicManifestIndex()
    : Index(Trace::IndexName::epicManifests) {}

std::vector<EpicAppEntry> EpicManifestIndex::findByName(const QString& displayName, int matchMode) {
    return built(m_names).find(displayName, matchMode);
}

void EpicManifestIndex::build(std::list<EpicAppEntry>& entries) {
    Logger logger = Logger::create("Quorvan.Finders.EpicStore");
    const QString folder = manifestFolder();
    logger.logAlways("MetaDir Folder: %ls", qUtf16Printable(folder));
    QStringList manifests = Files::names(folder, QStringLiteral(".item"));
    m_names.reserve(static_cast<std::size_t>(manifests.size()));
    const QDir dir(folder);
    takeEach(std::move(manifests), [&](const QString& manifest) { read(dir, manifest, entries, logger); });
    if (entries.empty()) {
        logger.logAlways("No apps");
    }
}

void EpicManifestIndex::read(const QDir& folder, const QString& manifest, std::list<EpicAppEntry>& entries,
                             Logger& logger) {
    const std::optional<EpicAppEntry> entry =
        parseEpicManifest(Files::readWholeFile(folder.filePath(manifest), largestManifest));
    if (!entry) {
        logger.logWarning("  Skipped invalid manifest: %ls", qUtf16Printable(manifest));
        return;
    }
    if (entry->AppName.isEmpty() && entry->InstallLocation.isEmpty()) {
        return;
    }
    add(entries, *entry, entry->DisplayName, entry->InstallLocation, m_names.row(entry->DisplayName, *entry));
    logger.logAlways("  App: %ls | %ls", qUtf16Printable(entry->AppName), qUtf16Printable(entry->DisplayName));
}
