#pragma once

#include "platform/Paths.h"

#include <QStringBuilder>

/// Paths of the PC that finders look at, in the words that finders use. This library's own files, which are not on a
/// recorded PC, take QDir::separator().
namespace Paths {

inline QChar separator() {
    return Platform::pathSeparator();
}

inline QString toNative(const QString& path) {
    return Platform::toNativeSeparators(path);
}

/// `folder`, one native separator, `name`: never checks whether `folder` ends with a separator already.
inline QString join(const QString& folder, const QString& name) {
    return folder % separator() % name; // in one piece of memory, and no larger than it must be
}

/// Cleaned, and native.
inline QString cleaned(const QString& path) {
    return toNative(Platform::cleanPath(path));
}

/// What a file's name, which has a dot at or behind `from`, has between there and its first dot.
inline QString baseName(const QString& fileName, int from = 0) {
    return fileName.mid(from, fileName.indexOf(QLatin1Char('.')) - from);
}

// With forward slashes:

/// The folder that a path is in.
using Platform::absoluteFolderOf;

using Platform::absoluteFolder;

/// A name below a folder, or by itself when it is a whole path.
using Platform::absoluteFilePath;

} // namespace Paths
