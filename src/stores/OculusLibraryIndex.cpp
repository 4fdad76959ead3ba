#include "stores/OculusLibraryIndex.h"

#include "stores/OculusLibraries.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

OculusLibraryIndex::OculusLibraryIndex()
    : Index(Trace::IndexName::oculusLibraries) {}

std::vector<OculusAppEntry> OculusLibraryIndex::findByAppId(const QString& appId) {
    return built(m_appIds).find(appId);
}

void OculusLibraryIndex::build(std::list<OculusAppEntry>& entries) {
    Logger logger = Logger::create("Quorvan.Finders.OculusStore");
    const QStringList folders = oculusLibraryFolders(logger);
    if (folders.isEmpty()) {
        logger.logAlways("Not found");
        return;
    }
    for (const QString& folder : folders) {
        read(folder, entries, logger);
    }
    if (entries.empty()) {
        logger.logAlways("No App ID");
    }
}

void OculusLibraryIndex::read(const QString& folder, std::list<OculusAppEntry>& entries, Logger& logger) {
    logger.logAlways("Library Folder: %ls", qUtf16Printable(folder));
    QStringList manifests = Files::names(folder, QStringLiteral(".json.mini"));
    m_appIds.reserve(static_cast<std::size_t>(manifests.size()));
    takeEach(std::move(manifests), [&](const QString& manifest) {
        const OculusAppEntry entry{Paths::baseName(manifest), folder};
        add(entries, entry, entry.appId, entry.manifestsFolder, m_appIds.row(entry.appId, entry));
        logger.logAlways("  App ID: %ls", qUtf16Printable(entry.appId));
    });
}
