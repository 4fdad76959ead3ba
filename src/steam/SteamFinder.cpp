#include "steam/SteamFinder.h"

#include "catalogue/UninstallIndex.h"
#include "core/LocationFilling.h"
#include "steam/SteamLibraryIndex.h"
#include "support/Logger.h"

#include <QDir>

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
    for (const UninstallEntry* entry : m_uninstallIndex->findByKeyPath(keyPath)) {
        if (!entry->uninstallString.isEmpty() && findIn(entry->installLocation.trimmed(), location)) {
            return true;
        }
    }
    return false;
}

bool SteamFinder::findInLibraries(GameLocation& location) const {
    if (m_installFolderName.isEmpty()) {
        return false;
    }
    for (const SteamAppEntry* entry : m_steamIndex->findByAppId(m_appId)) {
        if (findIn(QDir(entry->commonFolder).absoluteFilePath(m_installFolderName), location)) {
            return true;
        }
    }
    return false;
}

bool SteamFinder::findIn(const QString& folder, GameLocation& location) const {
    resetLocation(location);
    location.installFolder = folder;
    if (folder.isEmpty() || !QDir(folder).exists()) {
        return false;
    }
    const QString launchUrl = QLatin1String("steam://launch/") + m_appId;
    if (!collectExecutables(location, folder, m_executables, launchUrl, [](const QString&) {})) {
        return false;
    }
    logger().logAlways("Steam: Found %ls", qUtf16Printable(m_appId));
    return true;
}

} // namespace Finders
