#include "stores/EpicStoreFinder.h"

#include "core/LocationFilling.h"
#include "stores/EpicManifestIndex.h"
#include "support/Logger.h"
#include "support/Trace.h"

#include <algorithm>

namespace Finders {

namespace {

/// The launcher wants the colons between the parts percent-encoded, and the parts as they are.
QString launchUrlOf(const EpicAppEntry& entry) {
    const QLatin1String colon("%3A");
    return QLatin1String("com.epicgames.launcher://apps/") + entry.CatalogNamespace + colon + entry.CatalogItemId +
           colon + entry.AppName + QLatin1String("?action=launch&silent=true");
}

} // namespace

EpicStoreFinder::EpicStoreFinder(Logger* logger, EpicManifestIndex* index, const QString& name,
                                 const QStringList& executables, int matchMode)
    : AbstractFinder(logger)
    , m_index(index)
    , m_name(name)
    , m_executables(executables)
    , m_matchMode(matchMode) {}

bool EpicStoreFinder::find(GameLocation& location) {
    if (m_name.isEmpty()) {
        Trace::note("No name is given.");
        return false;
    }
    const std::vector<EpicAppEntry> entries = m_index->findByName(m_name, m_matchMode);
    if (entries.empty()) {
        Trace::note("No manifest of the Epic launcher %s \"%ls\".", MatchMode::words(m_matchMode),
                    qUtf16Printable(m_name));
    }
    return std::any_of(entries.begin(), entries.end(),
                       [this, &location](const EpicAppEntry& entry) { return findBy(entry, location); });
}

bool EpicStoreFinder::findBy(const EpicAppEntry& entry, GameLocation& location) const {
    const QString& folder = entry.InstallLocation;
    if (folder.isEmpty()) {
        Trace::note("The manifest of %ls tells no install location.", qUtf16Printable(entry.AppName));
        return false;
    }
    resetLocation(location, folder);
    const QStringList found = collectExecutables(location, folder, m_executables, launchUrlOf(entry));
    for (const QString& executable : found) {
        logger().logAlways("EpicStore: Found %ls: %ls", qUtf16Printable(folder), qUtf16Printable(executable));
    }
    if (found.isEmpty()) {
        logger().logAlways("EpicStore: Not found %ls", qUtf16Printable(folder));
    }
    return !found.isEmpty();
}

} // namespace Finders
