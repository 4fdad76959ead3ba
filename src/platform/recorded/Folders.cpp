#include "platform/Folders.h"

#include "platform/recorded/RecordedPc.h"

#include <QStandardPaths>

#include <cstring>

namespace Platform {

namespace {

constexpr qint32 successful = 0;
constexpr qint32 failed = static_cast<qint32>(0x80004005); // E_FAIL

// Copies a path into one of the buffers of maxPath characters.
bool copyPath(const QString& path, char16_t* buffer) {
    if (path.isEmpty() || path.size() >= static_cast<int>(maxPath)) {
        return false;
    }
    std::memcpy(buffer, path.utf16(), (static_cast<size_t>(path.size()) + 1) * sizeof(char16_t));
    return true;
}

} // namespace

qint32 folderPath(int csidl, char16_t* buffer) {
    return copyPath(Recorded::currentPc()->description().shellFolders.value(csidl), buffer) ? successful : failed;
}

qint32 ownFolderPath(int /*csidl*/, char16_t* buffer) {
    return copyPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), buffer) ? successful
                                                                                                   : failed;
}

bool volumeName(const QString& mountPoint, char16_t* buffer) {
    if (mountPoint.size() != 3 || !mountPoint.endsWith(QLatin1String(":\\"))) {
        return false;
    }
    return copyPath(Recorded::currentPc()->description().volumes.value(mountPoint.at(0).toUpper()), buffer);
}

} // namespace Platform
