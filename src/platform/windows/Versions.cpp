#include "platform/Versions.h"

#include "platform/windows/WideText.h"

#include <windows.h>

namespace Platform {

quint32 fileVersionInfoSize(const QString& path) {
    DWORD unused = 0;
    return ::GetFileVersionInfoSizeW(wide(path), &unused);
}

bool fileVersionInfo(const QString& path, quint32 size, void* block) {
    return ::GetFileVersionInfoW(wide(path), 0, size, block) != 0;
}

bool versionRootBlock(const void* block, const void*& record, quint32& length) {
    void* found = nullptr;
    UINT foundLength = 0;
    const bool known = ::VerQueryValueW(block, L"\\", &found, &foundLength) != 0;
    record = found;
    length = foundLength;
    return known;
}

} // namespace Platform
