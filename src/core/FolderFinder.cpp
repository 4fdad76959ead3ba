#include "core/FolderFinder.h"

#include "core/LocationFilling.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace Finders {

FolderFinder::FolderFinder(Logger* logger, const QString& folder, const QStringList& executables)
    : AbstractFinder(logger)
    , m_folder(folder)
    , m_executables(executables) {}

bool FolderFinder::find(GameLocation& location) {
    if (!Files::folderExists(m_folder)) {
        Trace::note("The folder %ls is missing.", qUtf16Printable(m_folder));
        return false;
    }

    resetLocation(location);
    bool found = false;
    for (const QString& executable : qAsConst(m_executables)) {
        const QString path = Paths::absoluteFilePath(m_folder, executable);
        if (!Files::exists(path)) {
            continue;
        }
        const QString native = Paths::toNative(path);
        location.installFolder = Paths::toNative(Paths::absoluteFolder(m_folder));
        addExecutable(location, native, native);
        logger().logAlways("Folder: %ls", qUtf16Printable(path));
        found = true;
    }
    if (!found) {
        noteNoExecutable(m_folder);
    }
    return found;
}

} // namespace Finders
