#include "core/LocationFilling.h"

#include "support/Files.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

void resetLocation(GameLocation& location, const QString& installFolder) {
    location.executablePath.clear();
    location.launchCommand.clear();
    location.executablePaths.clear();
    location.installFolder = installFolder;
    location.hostFlag = false;
}

void noteNoExecutable(const QString& folder) {
    Trace::note("None of the executables is in %ls.", qUtf16Printable(folder));
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

QStringList collectExecutables(GameLocation& location, const QString& folder, const QStringList& names,
                               const QString& launchUrl) {
    QStringList found;
    for (const QString& name : names) {
        const QString candidate = Paths::join(folder, name);
        if (!Files::exists(candidate)) {
            continue;
        }
        addExecutable(location, candidate, launchUrl.isEmpty() ? candidate : launchUrl);
        found.append(candidate);
    }
    if (found.isEmpty()) {
        noteNoExecutable(folder);
    }
    return found;
}

} // namespace Finders
