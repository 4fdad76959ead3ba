#pragma once

#include <QChar>
#include <QString>

/// Paths of the PC that finders look at, as Qt's file classes see them on Windows. There each operation is the call
/// that its comment names; over a recorded PC it gives the same result. With no recording chosen Qt's own rules hold.
namespace Platform {

QChar pathSeparator();                                                    // QDir::separator
QString toNativeSeparators(const QString& path);                          // QDir::toNativeSeparators
QString cleanPath(const QString& path);                                   // QDir::cleanPath
QString absoluteFolderOf(const QString& path);                            // QFileInfo(path).absolutePath
QString writtenFolder(const QString& folder);                             // QDir(folder).path
QString absoluteFolder(const QString& folder);                            // QDir(folder).absolutePath
QString absoluteFilePath(const QString& folder, const QString& fileName); // QDir(folder).absoluteFilePath

/// What Qt's file classes have to be asked for to learn of `path`: itself. Over a recorded PC always a path on a drive,
/// so that they answer out of the recording and never look beyond it.
QString pathOnPc(const QString& path);

/// QDir(folder).cd(name). False when there is no such folder; `folder` is then untouched.
bool changeFolder(QString& folder, const QString& name);

} // namespace Platform
