#include "platform/Files.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <shlobj.h>

#include <sys/stat.h>
#include <sys/types.h>

namespace Platform {

qint64 fileSize(const QString& path) {
    struct _stat64 status {};

    return ::_wstat64(wide(path), &status) == 0 ? status.st_size : -1;
}

bool createFolder(const QString& path) {
    return ::SHCreateDirectory(nullptr, wide(path)) == ERROR_SUCCESS;
}

bool deleteFile(const QString& path) {
    return ::DeleteFileW(wide(path)) != 0;
}

bool moveFile(const QString& from, const QString& to) {
    return ::MoveFileExW(wide(from), wide(to), MOVEFILE_REPLACE_EXISTING) != 0;
}

} // namespace Platform
