#include "steam/SteamFinder.h"

#include "catalogue/UninstallIndex.h"
#include "core/LocationFilling.h"
#include "steam/SteamLibraryIndex.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

SteamFinder::SteamFinder(Logger* logger, UninstallIndex* uninstallIndex, SteamLibraryIndex* steamIndex,
                         const QString& appId, const QString& installFolderName, const QStringList& executables)
    : AbstractFinder(logger)
    , m_uninstallIndex(uninstallIndex)
    , m_steamIndex(steamIndex)
    , m_appId(appId)
    , m_installFolderName(installFolderName)
    , m_executables(executables) {}

bool SteamFinder::find(GameLocation& location) {
    return findByUninstallEntry(location) || findInLibraries(location);
}

bool SteamFinder::findByUninstallEntry(GameLocation& location) const {
    const QString keyPath = UninstallIndex::rootKeyPath() + QLatin1String("\\Steam App ") + m_appId;
    const std::vector<UninstallEntry> entries = m_uninstallIndex->findByKeyPath(keyPath);
    if (entries.empty()) {
        Trace::note("The Uninstall registry has no program under \"Steam App %ls\".", qUtf16Printable(m_appId));
    }
    for (const UninstallEntry& entry : entries) {
        if (!entry.uninstallString.isEmpty() && findIn(entry.installLocation.trimmed(), location)) {
            return true;
        }
    }
    return false;
}

bool SteamFinder::findInLibraries(GameLocation& location) const {
    if (m_installFolderName.isEmpty()) {
        Trace::note("No folder's name is given, so no library is searched.");
        return false;
    }
    const std::vector<SteamAppEntry> entries = m_steamIndex->findByAppId(m_appId);
    if (entries.empty()) {
        Trace::note("No Steam library has the app %ls.", qUtf16Printable(m_appId));
    }
    for (const SteamAppEntry& entry : entries) {
        if (findIn(Paths::absoluteFilePath(entry.commonFolder, m_installFolderName), location)) {
            return true;
        }
    }
    return false;
}

bool SteamFinder::findIn(const QString& folder, GameLocation& location) const {
    resetLocation(location, folder);
    if (folder.isEmpty() || !Files::folderExists(folder)) {
        Trace::note("The install folder \"%ls\" is missing.", qUtf16Printable(folder));
        return false;
    }
    if (collectExecutables(location, folder, m_executables, QLatin1String("steam://launch/") + m_appId).isEmpty()) {
        return false;
    }
    logger().logAlways("Steam: Found %ls", qUtf16Printable(m_appId));
    return true;
}

} // namespace Finders
