#include "catalogue/StartMenuFinder.h"

#include "catalogue/StartMenuIndex.h"
#include "core/LocationFilling.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

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
    const std::vector<QString> shortcuts = m_index->findByName(m_name, m_matchMode);
    if (shortcuts.empty()) {
        Trace::note("No shortcut of the Start menu %s \"%ls\".", MatchMode::words(m_matchMode),
                    qUtf16Printable(m_name));
    }
    return std::any_of(shortcuts.begin(), shortcuts.end(),
                       [this, &location](const QString& shortcut) { return follow(shortcut, location); });
}

bool StartMenuFinder::follow(const QString& shortcut, GameLocation& location) const {
    const QString target = Files::shortcutTarget(shortcut);
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
    if (!found) {
        Trace::note("The shortcut %ls leads to none of the executables.", qUtf16Printable(shortcut));
    }
    return found;
}

} // namespace Finders
