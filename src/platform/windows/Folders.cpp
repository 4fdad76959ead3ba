#include "platform/Folders.h"

#include "platform/windows/WideText.h"

#include <windows.h>

#include <shlobj.h>

namespace Platform {

static_assert(maxPath == MAX_PATH, "Windows fills buffers of MAX_PATH characters");

qint32 folderPath(int csidl, char16_t* buffer) {
    return ::SHGetFolderPathW(nullptr, csidl, nullptr, SHGFP_TYPE_CURRENT, reinterpret_cast<wchar_t*>(buffer));
}

qint32 ownFolderPath(int csidl, char16_t* buffer) {
    return folderPath(csidl, buffer);
}

bool volumeName(const QString& mountPoint, char16_t* buffer) {
    return ::GetVolumeNameForVolumeMountPointW(wide(mountPoint), reinterpret_cast<wchar_t*>(buffer), maxPath) != 0;
}

} // namespace Platform
