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

QString manifestFolder() {
    const QString registered = readRegistryString(registeredFolder);
    if (!registered.isEmpty()) {
        return registered;
    }
    return knownFolderPath(Platform::csidlCommonAppData) + QLatin1String("/Epic/EpicGamesLauncher/Data/Manifests");
}

void readManifest(const QDir& folder, const QString& name, std::list<EpicAppEntry>& entries, Logger& logger) {
    std::optional<EpicAppEntry> entry = parseEpicManifest(Files::readWholeFile(folder.filePath(name)));
    if (!entry) {
        logger.logWarning("  Skipped invalid manifest: %ls", qUtf16Printable(name));
        return;
    }
    if (entry->AppName.isEmpty() && entry->InstallLocation.isEmpty()) {
        return;
    }
    logger.logAlways("  App: %ls | %ls", qUtf16Printable(entry->AppName), qUtf16Printable(entry->DisplayName));
    entries.push_back(std::move(*entry));
}

} // namespace

const std::list<EpicAppEntry>& EpicManifestIndex::entries() {
    return catalogue().entries;
}

std::vector<const EpicAppEntry*> EpicManifestIndex::findByName(const QString& displayName, int matchMode) {
    return catalogue().names.find(displayName, matchMode);
}

const EpicManifestIndex::Catalogue& EpicManifestIndex::catalogue() {
    return m_catalogue.entries(build);
}

void EpicManifestIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("EpicManifests");
    Logger logger = Logger::create("Quorvan.Finders.EpicStore");
    const QString folder = manifestFolder();
    logger.logAlways("MetaDir Folder: %ls", qUtf16Printable(folder));
    const QStringList manifests = Files::names(folder, QStringLiteral("*.item"));
    for (const QString& manifest : manifests) {
        readManifest(QDir(folder), manifest, catalogue.entries, logger);
    }
    if (catalogue.entries.empty()) {
        logger.logAlways("No apps");
    }
    for (const EpicAppEntry& entry : catalogue.entries) {
        catalogue.names.add(entry.DisplayName, entry);
        Trace::entry(entry.DisplayName, entry.InstallLocation);
    }
    section.setEntries(catalogue.entries.size());
}
