#include "stores/OculusLibraryIndex.h"

#include "stores/OculusLibraries.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Trace.h"

#include <QFileInfo>

namespace {

void readApps(const QString& folder, std::list<OculusAppEntry>& entries, Logger& logger) {
    logger.logAlways("Library Folder: %ls", qUtf16Printable(folder));
    const QStringList manifests = Files::names(folder, QStringLiteral("*.json.mini"));
    for (const QString& manifest : manifests) {
        entries.push_back({QFileInfo(manifest).baseName(), folder});
        logger.logAlways("  App ID: %ls", qUtf16Printable(entries.back().appId));
    }
}

void readLibraries(std::list<OculusAppEntry>& entries, Logger& logger) {
    const QStringList folders = oculusLibraryFolders(logger);
    if (folders.isEmpty()) {
        logger.logAlways("Not found");
        return;
    }
    for (const QString& folder : folders) {
        readApps(folder, entries, logger);
    }
    if (entries.empty()) {
        logger.logAlways("No App ID");
    }
}

} // namespace

const std::list<OculusAppEntry>& OculusLibraryIndex::entries() {
    return catalogue().entries;
}

std::vector<const OculusAppEntry*> OculusLibraryIndex::findByAppId(const QString& appId) {
    return catalogue().appIds.find(appId);
}

const OculusLibraryIndex::Catalogue& OculusLibraryIndex::catalogue() {
    return m_catalogue.entries(build);
}

void OculusLibraryIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("OculusLibraries");
    Logger logger = Logger::create("Quorvan.Finders.OculusStore");
    readLibraries(catalogue.entries, logger);
    for (const OculusAppEntry& entry : catalogue.entries) {
        catalogue.appIds.add(entry.appId, entry);
        Trace::entry(entry.appId, entry.manifestsFolder);
    }
    section.setEntries(catalogue.entries.size());
}
