#pragma once

#include <QString>
#include <QtGlobal>

/// Single files and folders.
namespace Platform {

/// _wstat64: the size in bytes, or -1 when the file cannot be examined.
qint64 fileSize(const QString& path);

/// SHCreateDirectory with no owner: makes missing folders on the way. True only when the folder was made now.
bool createFolder(const QString& path);

bool deleteFile(const QString& path); // DeleteFileW

/// MoveFileExW with MOVEFILE_REPLACE_EXISTING.
bool moveFile(const QString& from, const QString& to);

} // namespace Platform
