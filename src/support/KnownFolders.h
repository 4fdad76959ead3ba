#pragma once

#include <QString>

/// The shell's folder with this CSIDL value (Platform.h names the ones in use). Empty when the shell has none.
QString knownFolderPath(int csidl);

/// The folder kinds of makeMakerFolderPath. Any other number means localAppData.
namespace FolderKind {
constexpr int localAppData = 0;
constexpr int commonAppData = 1;
constexpr int personal = 2;
} // namespace FolderKind

/// Where this library keeps its own files: the folder of this kind, then "Veltrane" and `sub`. When the shell has no
/// such folder, the path begins at the root of the current drive. Off Windows every kind is the user's data folder.
QString makeMakerFolderPath(int kind, const QString& sub);
