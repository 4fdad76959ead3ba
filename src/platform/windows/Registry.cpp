#include "platform/Registry.h"

#include "platform/windows/WideText.h"

#include <windows.h>

namespace Platform {

namespace {

HKEY rootHandle(RootKey root) {
    switch (root) {
    case RootKey::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case RootKey::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case RootKey::Users:
        return HKEY_USERS;
    case RootKey::CurrentUser:
        break;
    }
    return HKEY_CURRENT_USER;
}

HKEY handleOf(const KeyHandle& key) {
    return static_cast<HKEY>(key.get());
}

/// What both RegOpenKeyExW and RegOpenKeyExA leave behind, as an owned handle.
ErrorCode take(LSTATUS result, HKEY opened, KeyHandle& key) {
    key.reset(result == ERROR_SUCCESS ? opened : nullptr);
    return static_cast<ErrorCode>(result);
}

} // namespace

void KeyCloser::operator()(void* key) const noexcept {
    ::RegCloseKey(static_cast<HKEY>(key));
}

ErrorCode openKey(RootKey root, const QString& subKey, quint32 access, KeyHandle& key) {
    HKEY opened = nullptr;
    const LSTATUS result = ::RegOpenKeyExW(rootHandle(root), wide(subKey), 0, access, &opened);
    return take(result, opened, key);
}

ErrorCode openKeyNarrow(RootKey root, const char* subKey, quint32 access, KeyHandle& key) {
    HKEY opened = nullptr;
    const LSTATUS result = ::RegOpenKeyExA(rootHandle(root), subKey, 0, access, &opened);
    return take(result, opened, key);
}

ErrorCode queryValue(const KeyHandle& key, const QString& valueName, quint32& type, void* data, quint32& size) {
    DWORD foundType = 0;
    DWORD foundSize = size;
    const LSTATUS result =
        ::RegQueryValueExW(handleOf(key), wide(valueName), nullptr, &foundType, static_cast<BYTE*>(data), &foundSize);
    type = foundType;
    size = foundSize;
    return static_cast<ErrorCode>(result);
}

ErrorCode queryValueNarrow(const KeyHandle& key, const char* valueName, quint32& type, void* data, quint32& size) {
    DWORD foundType = 0;
    DWORD foundSize = size;
    const LSTATUS result =
        ::RegQueryValueExA(handleOf(key), valueName, nullptr, &foundType, static_cast<BYTE*>(data), &foundSize);
    type = foundType;
    size = foundSize;
    return static_cast<ErrorCode>(result);
}

ErrorCode enumKey(const KeyHandle& key, quint32 index, char16_t* name, quint32& length) {
    DWORD foundLength = length;
    const LSTATUS result = ::RegEnumKeyExW(handleOf(key), index, reinterpret_cast<wchar_t*>(name), &foundLength,
                                           nullptr, nullptr, nullptr, nullptr);
    length = foundLength;
    return static_cast<ErrorCode>(result);
}

} // namespace Platform
