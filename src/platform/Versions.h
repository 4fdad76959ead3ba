#pragma once

#include <QString>
#include <QtGlobal>

/// Version resources of executables.
namespace Platform {

quint32 fileVersionInfoSize(const QString& path);                     // GetFileVersionInfoSizeW
bool fileVersionInfo(const QString& path, quint32 size, void* block); // GetFileVersionInfoW

/// VerQueryValueW of the root block "\": where the fixed record lies in `block` and how long it is.
bool versionRootBlock(const void* block, const void*& record, quint32& length);

} // namespace Platform
