#include "stores/OculusStoreFinder.h"

#include "core/LocationFilling.h"
#include "stores/OculusLibraryIndex.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

#include <algorithm>

namespace Finders {

OculusStoreFinder::OculusStoreFinder(Logger* logger, OculusLibraryIndex* index, const QString& appId,
                                     const QStringList& executables, const QString& softwareFolder)
    : AbstractFinder(logger)
    , m_index(index)
    , m_appId(appId)
    , m_executables(executables)
    , m_softwareFolder(softwareFolder) {
    m_executables.removeAll(QString());
}

bool OculusStoreFinder::find(GameLocation& location) {
    if (m_softwareFolder.isEmpty()) {
        Trace::note("No software folder is given, so no library is searched.");
        return false;
    }
    const std::vector<OculusAppEntry> entries = m_index->findByAppId(m_appId);
    if (entries.empty()) {
        Trace::note("No Oculus library has the app %ls.", qUtf16Printable(m_appId));
    }
    return std::any_of(entries.begin(), entries.end(),
                       [this, &location](const OculusAppEntry& entry) { return findBy(entry, location); });
}

bool OculusStoreFinder::findBy(const OculusAppEntry& entry, GameLocation& location) const {
    QString folder = entry.manifestsFolder;
    const bool isThere = Files::enter(folder, QStringLiteral("..")) &&
                         Files::enter(folder, QStringLiteral("Software")) && Files::enter(folder, m_softwareFolder);
    folder = Paths::absoluteFolder(folder);

    resetLocation(location, folder);
    if (!isThere || folder.isEmpty() || !Files::folderExists(folder)) {
        Trace::note("The folder %ls is missing beside %ls.", qUtf16Printable(m_softwareFolder),
                    qUtf16Printable(entry.manifestsFolder));
        return false;
    }
    const int found = collectExecutables(location, folder, m_executables).size();
    for (int i = 0; i < found; ++i) {
        logger().logAlways("OculusStore: %ls", qUtf16Printable(location.launchCommand)); // each time the first one
    }
    return found > 0;
}

} // namespace Finders
