#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

/// The seam: the raw operations of the system that everything above is written on. They speak Windows' own language
/// (error codes, byte counts, a key handle, an index to enumerate) and hide no policy, so that every policy is neutral
/// code and is tested over both implementations:
///
/// - platform/windows: each operation is the Windows function that its comment names;
/// - platform/recorded: the same operations answered out of a recorded PC (docs/recorded-pc.md), or out of an empty
///   registry and the real file system when no recording is chosen. A failure has the code that Windows gives for it.
///
/// Text is UTF-16. Nothing here throws but for want of memory, and any thread may call. This header is about the
/// registry (learn.microsoft.com/windows/win32/api/winreg).
namespace Platform {

using ErrorCode = quint32;

constexpr ErrorCode errorSuccess = 0;
constexpr ErrorCode errorFileNotFound = 2;
constexpr ErrorCode errorInvalidHandle = 6;
constexpr ErrorCode errorMoreData = 234;
constexpr ErrorCode errorNoMoreItems = 259;

constexpr quint32 keyRead = 0x20019;
constexpr quint32 keyWow64_64Key = 0x0100;
constexpr quint32 keyWow64_32Key = 0x0200;

constexpr quint32 regSz = 1;
constexpr quint32 regDword = 4;

enum class RootKey { LocalMachine, CurrentUser, ClassesRoot, Users };

struct KeyCloser {
    void operator()(void* key) const noexcept; // RegCloseKey
};

/// Owns one open key; null while none is open.
using KeyHandle = std::unique_ptr<void, KeyCloser>;

/// RegOpenKeyExW. `key` is null after any result but errorSuccess.
ErrorCode openKey(RootKey root, const QString& subKey, quint32 access, KeyHandle& key);

/// RegOpenKeyExA, for names in plain ASCII.
ErrorCode openKeyNarrow(RootKey root, const char* subKey, quint32 access, KeyHandle& key);

/// RegQueryValueExW. `size` is the buffer's size in bytes before, the value's size after. After errorMoreData the
/// buffer may hold anything; a value of no bytes, which succeeds, leaves it alone.
ErrorCode queryValue(const KeyHandle& key, const QString& valueName, quint32& type, void* data, quint32& size);

/// RegQueryValueExA: as above, but text comes in the ANSI code page.
ErrorCode queryValueNarrow(const KeyHandle& key, const char* valueName, quint32& type, void* data, quint32& size);

/// RegEnumKeyExW. `length` is the buffer's size in characters before, the name's length without its end after.
ErrorCode enumKey(const KeyHandle& key, quint32 index, char16_t* name, quint32& length);

} // namespace Platform
