#include "catalogue/UninstallFinder.h"

#include "catalogue/UninstallIndex.h"
#include "core/LocationFilling.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"
#include "trace/UninstallCommand.h"

#include <algorithm>

namespace Finders {

UninstallFinder::UninstallFinder(Logger* logger, UninstallIndex* index, const QString& displayName,
                                 const QStringList& executables, int matchMode)
    : AbstractFinder(logger)
    , m_index(index)
    , m_displayName(displayName)
    , m_executables(executables)
    , m_matchMode(matchMode) {}

bool UninstallFinder::find(GameLocation& location) {
    const std::vector<UninstallEntry> entries = m_index->findByName(m_displayName, m_matchMode);
    if (entries.empty()) {
        Trace::note("No program of the Uninstall registry %s \"%ls\".", MatchMode::words(m_matchMode),
                    qUtf16Printable(m_displayName));
    }
    return std::any_of(entries.begin(), entries.end(),
                       [this, &location](const UninstallEntry& entry) { return findBy(entry, location); });
}

bool UninstallFinder::findBy(const UninstallEntry& entry, GameLocation& location) const {
    return findInInstallLocation(entry, location) || findBesideUninstaller(entry, location);
}

bool UninstallFinder::findInInstallLocation(const UninstallEntry& entry, GameLocation& location) const {
    resetLocation(location, entry.installLocation);
    if (entry.installLocation.isEmpty()) {
        Trace::note("%ls tells no install location.", qUtf16Printable(entry.keyPath));
        return false;
    }
    const QStringList found = collectExecutables(location, entry.installLocation, m_executables);
    for (const QString& executable : found) {
        logger().logAlways("Uninstall: Found %ls: %ls", qUtf16Printable(entry.keyPath), qUtf16Printable(executable));
    }
    return !found.isEmpty();
}

bool UninstallFinder::findBesideUninstaller(const UninstallEntry& entry, GameLocation& location) const {
    if (entry.uninstallString.isEmpty() || !UninstallCommand::uselessPartOf(entry.uninstallString).isEmpty()) {
        Trace::note("%ls names no uninstaller in the game's folder.", qUtf16Printable(entry.keyPath));
        return false;
    }
    resetLocation(location, Paths::absoluteFolderOf(UninstallCommand::programOf(entry.uninstallString)));
    const QStringList found = collectExecutables(location, location.installFolder, m_executables);
    for (const QString& executable : found) {
        logger().logAlways("Uninstall: Found %ls", qUtf16Printable(executable));
    }
    return !found.isEmpty();
}

} // namespace Finders
