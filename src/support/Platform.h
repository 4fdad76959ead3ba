#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <memory>
#include <string_view>

/// The seam: the raw operations of the system that everything above is written on. They speak Windows' own language
/// (error codes, byte counts, a key handle, an index to enumerate) and hide no policy, so that every policy is neutral
/// code and is tested over both implementations:
///
/// - support/windows: each operation is the Windows function that its comment names;
/// - support/recorded: the same operations answered out of a recorded PC (docs/recorded-pc.md), or out of an empty
///   registry and the real file system when no recording is chosen. A failure has the code that Windows gives for it.
///
/// Text is UTF-16. Nothing here throws but for want of memory, and any thread may call.
namespace Platform {

// ---- Registry (learn.microsoft.com/windows/win32/api/winreg) ----

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

/// RegQueryValueExW. `size` is the buffer's size in bytes before, the value's size after; errorMoreData leaves the
/// buffer alone, and so does a value of no bytes, which succeeds.
ErrorCode queryValue(const KeyHandle& key, const QString& valueName, quint32& type, void* data, quint32& size);

/// RegQueryValueExA: as above, but text comes in the ANSI code page.
ErrorCode queryValueNarrow(const KeyHandle& key, const char* valueName, quint32& type, void* data, quint32& size);

/// RegEnumKeyExW. `length` is the buffer's size in characters before, the name's length without its end after.
ErrorCode enumKey(const KeyHandle& key, quint32 index, char16_t* name, quint32& length);

// ---- Folders, modules, time ----

/// The size of the buffers that Windows fills with a path, in characters, the end included (MAX_PATH).
constexpr quint32 maxPath = 260;

constexpr int csidlPersonal = 5;
constexpr int csidlStartMenu = 11;
constexpr int csidlCommonStartMenu = 22;
constexpr int csidlLocalAppData = 28;
constexpr int csidlCommonAppData = 35;

/// SHGetFolderPathW with no owner, no token and flag 0, into a buffer of maxPath characters. Negative on failure.
qint32 folderPath(int csidl, char16_t* buffer);

/// Where this library's own files go: folderPath on Windows. Elsewhere always the user's own data folder, because a
/// recorded PC is never written to. Negative on failure.
qint32 ownFolderPath(int csidl, char16_t* buffer);

/// GetModuleFileNameW of the process's own executable: the number of characters written, 0 on failure; `size` when
/// the path was cut, which is then not terminated on every system.
quint32 moduleFileName(char16_t* buffer, quint32 size);

quint32 currentProcessId(); // GetCurrentProcessId

struct LocalTime {
    quint16 year = 0;
    quint16 month = 0;
    quint16 day = 0;
    quint16 hour = 0;
    quint16 minute = 0;
    quint16 second = 0;
    quint16 milliseconds = 0;
};

LocalTime localTime() noexcept; // GetLocalTime

bool performanceFrequency(qint64& ticksPerSecond); // QueryPerformanceFrequency
bool performanceCounter(qint64& ticks);            // QueryPerformanceCounter
quint32 tickCount();                               // GetTickCount

/// A function of the system's kernel library, looked up by name (LoadLibraryW, GetProcAddress). Null when this system
/// lacks it. The caller casts it to the type that Windows documents.
using SystemFunction = void (*)();
SystemFunction kernelFunction(const char* name);

/// The environment in which the finders look up variables (QProcessEnvironment::systemEnvironment on Windows).
QProcessEnvironment systemEnvironment();

/// GetVolumeNameForVolumeMountPointW with a buffer of maxPath characters. False on failure.
bool volumeName(const QString& mountPoint, char16_t* buffer);

/// The folders that the user of a recorded PC chose for games, which on Windows are in the user's settings: by the key
/// of the game, letter case ignored as there. Empty when there is none, and always on Windows.
QString recordedUserLocation(const QString& key);

QStringList recordedUserLocationKeys();

// ---- Version resources ----

quint32 fileVersionInfoSize(const QString& path);                     // GetFileVersionInfoSizeW
bool fileVersionInfo(const QString& path, quint32 size, void* block); // GetFileVersionInfoW

/// VerQueryValueW of the root block "\": where the fixed record lies in `block` and how long it is.
bool versionRootBlock(const void* block, const void*& record, quint32& length);

// ---- Files ----

/// _wstat64: the size in bytes, or -1 when the file cannot be examined.
qint64 fileSize(const QString& path);

/// SHCreateDirectory with no owner: makes missing folders on the way. True only when the folder was made now.
bool createFolder(const QString& path);

bool deleteFile(const QString& path); // DeleteFileW

/// MoveFileExW with MOVEFILE_REPLACE_EXISTING.
bool moveFile(const QString& from, const QString& to);

constexpr quint32 attributeHidden = 0x0002;
constexpr quint32 attributeSystem = 0x0004;
constexpr quint32 attributeFolder = 0x0010;
constexpr quint32 attributeLink = 0x0400; ///< a junction or a symbolic link, as any reparse point is

/// One entry of a folder as the folder tells it: the link itself, the shortcut itself.
struct FolderEntry {
    QString name;
    quint32 attributes = 0;
};

struct ListingCloser {
    void operator()(void* listing) const noexcept; // FindClose
};

/// Owns one listing on its way; null when the folder can't be listed.
using ListingHandle = std::unique_ptr<void, ListingCloser>;

/// FindFirstFileW of `folder`\*. The entries come in the file system's order, with "." and ".." in all folders but a
/// drive's root.
ListingHandle firstEntry(const QString& folder, FolderEntry& entry);
bool nextEntry(const ListingHandle& listing, FolderEntry& entry); // FindNextFileW

/// What tells two files or folders apart, however they are reached.
struct FileIdentity {
    quint64 volume = 0;
    quint64 index = 0;
};

/// GetFileInformationByHandle of what `path` leads to. False when it can't be opened.
bool fileIdentity(const QString& path, FileIdentity& identity);

/// A C-runtime stream in text mode: each "\n" reaches the disk as CR LF, in every build. Writing never throws and
/// never loses a line for its characters; errors of the disk are ignored, as nobody could be told.
class TextStream {
public:
    virtual ~TextStream() = default;
    virtual void write(std::string_view utf8) noexcept = 0;
    virtual void flush() noexcept = 0;

protected:
    TextStream() = default;
    Q_DISABLE_COPY_MOVE(TextStream)
};

/// _wfsopen with share flag _SH_DENYNO and one of the modes "at", "wt", "at, ccs=UNICODE", "wt, ccs=UNICODE". Plain
/// modes write UTF-8; the Unicode ones write UTF-16LE after a byte-order mark that a new file begins with. Destroying
/// the stream closes the file. Null when it cannot be opened.
std::unique_ptr<TextStream> openShared(const QString& path, const char* mode);

// ---- Locks ----

struct CriticalSectionDeleter {
    void operator()(void* section) const noexcept; // DeleteCriticalSection
};

/// Owns one critical section: a lock that its thread may take again.
using CriticalSectionHandle = std::unique_ptr<void, CriticalSectionDeleter>;

CriticalSectionHandle newCriticalSection();                               // InitializeCriticalSection
void enterCriticalSection(const CriticalSectionHandle& section);          // EnterCriticalSection
void leaveCriticalSection(const CriticalSectionHandle& section) noexcept; // LeaveCriticalSection

} // namespace Platform
