#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Recordings {

/// A path with a drive letter, taken apart as Windows and Qt 5.15 do it there.
struct DrivePath {
    QChar letter;        ///< as written
    QStringList names;   ///< below the drive's root, "." and ".." worked out
    bool isValid = true; ///< false when no file can have this name

    bool isFolderOnly = false; ///< a separator ends it, so that no file is meant

    /// Takes apart "C:\x", "c:/x", "C:x", "\\?\C:\x" and "\\.\C:\x". Empty when `path` doesn't begin with a drive.
    static std::optional<DrivePath> parse(const QString& path);

    /// Whether a file on Windows can have `name`.
    static bool canName(const QString& name);

    bool isRoot() const { return names.isEmpty(); }

    /// "C:/Games/X", without a slash at the end but for "C:/".
    QString text() const;
};

} // namespace Recordings
