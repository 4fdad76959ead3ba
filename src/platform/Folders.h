#pragma once

#include <QString>
#include <QtGlobal>

/// The shell's folders and the volumes of drives.
namespace Platform {

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

/// GetVolumeNameForVolumeMountPointW with a buffer of maxPath characters. False on failure.
bool volumeName(const QString& mountPoint, char16_t* buffer);

} // namespace Platform
