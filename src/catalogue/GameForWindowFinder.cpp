#include "catalogue/GameForWindowFinder.h"

#include "catalogue/GamesExplorerIndex.h"
#include "core/LocationFilling.h"
#include "support/Logger.h"
#include "support/Paths.h"

#include <QFile>

namespace Finders {

GameForWindowFinder::GameForWindowFinder(Logger* logger, GamesExplorerIndex* index, const QString& title,
                                         const QStringList& executables)
    : AbstractFinder(logger)
    , m_index(index)
    , m_title(title)
    , m_executables(executables) {}

bool GameForWindowFinder::find(GameLocation& location) {
    for (const GamesExplorerEntry* entry : m_index->findByTitle(m_title)) {
        if (findBy(*entry, location)) {
            logger().logAlways("GameForWindow: %ls", qUtf16Printable(location.launchCommand));
            return true;
        }
    }
    return false;
}

bool GameForWindowFinder::findBy(const GamesExplorerEntry& entry, GameLocation& location) const {
    resetLocation(location);
    if (!entry.appExePath.isEmpty() && QFile::exists(entry.appExePath)) {
        location.installFolder = Paths::absoluteFolderOf(entry.appExePath).trimmed();
        addExecutable(location, entry.appExePath, entry.appExePath);
        return true;
    }

    const QString& folder = entry.configApplicationPath;
    return !folder.isEmpty() &&
           collectExecutables(location, folder, m_executables, {},
                              [&location, &folder](const QString&) { location.installFolder = folder; });
}

} // namespace Finders
