#pragma once

#include <QChar>
#include <QString>

/// Native path syntax. On Windows this is QDir's own. Elsewhere a path that Windows would know (with a drive letter, or
/// beginning with two backslashes) takes backslashes too, so that a recorded PC gives the answers that the PC gives;
/// every other path keeps Qt's own way.
namespace Paths {

/// The separator to add to `path`.
QChar separatorFor(const QString& path);

/// QDir::toNativeSeparators for Windows' paths as well.
QString toNative(const QString& path);

/// `folder`, one native separator, `name`: never checks whether `folder` ends with a separator already.
QString join(const QString& folder, const QString& name);

/// QDir::cleanPath, with either separator in `path`, and then toNative.
QString cleaned(const QString& path);

/// QFileInfo::absolutePath, with either separator in `path`: the folder of `path`, with forward slashes.
QString absoluteFolderOf(const QString& path);

} // namespace Paths
