#include "catalogue/StartMenuFinder.h"

#include "catalogue/StartMenuIndex.h"
#include "core/LocationFilling.h"
#include "support/Logger.h"
#include "support/Paths.h"

#include <QFileInfo>

#include <algorithm>

namespace Finders {

StartMenuFinder::StartMenuFinder(Logger* logger, StartMenuIndex* index, const QString& name,
                                 const QStringList& executables, int matchMode)
    : AbstractFinder(logger)
    , m_index(index)
    , m_name(name)
    , m_executables(executables)
    , m_matchMode(matchMode) {}

bool StartMenuFinder::find(GameLocation& location) {
    const std::vector<const QString*> shortcuts = m_index->findByName(m_name, m_matchMode);
    return std::any_of(shortcuts.begin(), shortcuts.end(),
                       [this, &location](const QString* shortcut) { return follow(*shortcut, location); });
}

bool StartMenuFinder::follow(const QString& shortcut, GameLocation& location) const {
    const QString target = QFileInfo(shortcut).symLinkTarget();
    resetLocation(location);
    bool found = false;
    for (const QString& executable : m_executables) {
        if (!target.contains(executable, Qt::CaseInsensitive)) {
            continue;
        }
        addExecutable(location, target, target);
        location.installFolder = Paths::absoluteFolderOf(target);
        logger().logAlways("StartMenu: Found %ls", qUtf16Printable(location.launchCommand));
        found = true;
    }
    return found;
}

} // namespace Finders
