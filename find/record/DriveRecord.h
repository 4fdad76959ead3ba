#pragma once

#include "recordings/DrivePath.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>

namespace Host {

/// The files and folders that a recording has, with the folders on the way to them. Names that differ in letter case
/// only are one, as on Windows.
class DriveRecord {
public:
    enum class Kind { Folder, File, ReadFile, Shortcut };

    struct Entry {
        QString name; ///< without its folder; a drive's letter for its root
        Kind kind = Kind::Folder;
        QByteArray contents; ///< of a file that finders read
        QString target;      ///< of a shortcut that leads somewhere
    };

    void addFolder(const Recordings::DrivePath& path);
    void addFile(const Recordings::DrivePath& path);
    void addContents(const Recordings::DrivePath& path, const QByteArray& contents);
    void addShortcut(const Recordings::DrivePath& path, const QString& target);

    /// Gives the file or folder the name by which its folder lists it. (A path that somebody wrote down can have other
    /// letter case.)
    void spell(const Recordings::DrivePath& path);

    /// By folded path ("C:/GAMES"), so that folders come before what is in them.
    const std::map<QString, Entry>& entries() const { return m_entries; }

    /// The paths of all entries as they are spelled ("C:/Games"), in the same order.
    QStringList paths() const;

    int count(Kind kind) const;

private:
    Entry& make(const Recordings::DrivePath& path, Kind kind);

    std::map<QString, Entry> m_entries;
};

/// The same file has the same folded path, however a finder writes it.
QString foldedPath(const Recordings::DrivePath& path);

/// The path of the file of this name in the folder.
Recordings::DrivePath pathIn(const Recordings::DrivePath& folder, const QString& name);

} // namespace Host
