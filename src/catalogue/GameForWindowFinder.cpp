#include "catalogue/GameForWindowFinder.h"

#include "catalogue/GamesExplorerIndex.h"
#include "core/LocationFilling.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

GameForWindowFinder::GameForWindowFinder(Logger* logger, GamesExplorerIndex* index, const QString& title,
                                         const QStringList& executables)
    : AbstractFinder(logger)
    , m_index(index)
    , m_title(title)
    , m_executables(executables) {}

bool GameForWindowFinder::find(GameLocation& location) {
    const std::vector<GamesExplorerEntry> entries = m_index->findByTitle(m_title);
    if (entries.empty()) {
        Trace::note("No game of the Games Explorer is named \"%ls\".", qUtf16Printable(m_title));
    }
    for (const GamesExplorerEntry& entry : entries) {
        if (findBy(entry, location)) {
            logger().logAlways("GameForWindow: %ls", qUtf16Printable(location.launchCommand));
            return true;
        }
    }
    return false;
}

bool GameForWindowFinder::findBy(const GamesExplorerEntry& entry, GameLocation& location) const {
    resetLocation(location);
    if (!entry.appExePath.isEmpty() && Files::exists(entry.appExePath)) {
        location.installFolder = Paths::absoluteFolderOf(entry.appExePath).trimmed();
        addExecutable(location, entry.appExePath, entry.appExePath);
        return true;
    }

    const QString& folder = entry.configApplicationPath;
    if (folder.isEmpty()) {
        Trace::note("The entry %ls tells no folder, and no executable that exists.", qUtf16Printable(entry.keyName));
        return false;
    }
    if (collectExecutables(location, folder, m_executables).isEmpty()) {
        return false;
    }
    location.installFolder = folder;
    return true;
}

} // namespace Finders
