#include "core/LocationFilling.h"

#include "support/Paths.h"

#include <QFile>

namespace Finders {

void resetLocation(GameLocation& location) {
    location.executablePath.clear();
    location.launchCommand.clear();
    location.executablePaths.clear();
    location.installFolder.clear();
    location.hostFlag = false;
}

void addExecutable(GameLocation& location, const QString& executable, const QString& launchCommand) {
    if (location.launchCommand.isEmpty()) {
        location.launchCommand = launchCommand;
        location.executablePath = executable;
    }
    if (!executable.isEmpty()) {
        location.executablePaths.append(executable);
    }
}

bool collectExecutables(GameLocation& location, const QString& folder, const QStringList& names,
                        const QString& launchUrl, const std::function<void(const QString& executable)>& onFound) {
    bool found = false;
    for (const QString& name : names) {
        const QString candidate = Paths::join(folder, name);
        if (!QFile::exists(candidate)) {
            continue;
        }
        addExecutable(location, candidate, launchUrl.isEmpty() ? candidate : launchUrl);
        onFound(candidate);
        found = true;
    }
    return found;
}

} // namespace Finders
