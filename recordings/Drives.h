#pragma once

#include "recordings/Contents.h"
#include "recordings/DrivePath.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace Recordings {

/// A file or folder on a drive.
struct File {
    enum class Kind { File, Folder };

    QString name; ///< as its folder lists it; the letter of a drive's root
    Kind kind = Kind::File;
    bool isHidden = false;
    bool isSystem = false;
    Contents contents;
    std::vector<QString> names; ///< of a folder: what is in it, in the file system's order
    quint64 identity = 0;       ///< one number for a file that links lead to by several names; 0 for one of its own

    bool isFolder() const { return kind == Kind::Folder; }

    friend bool operator==(const File& a, const File& b) {
        return a.name == b.name && a.kind == b.kind && a.isHidden == b.isHidden && a.isSystem == b.isSystem &&
               a.contents == b.contents && a.names == b.names;
    }
};

/// The drives of a PC. Names that differ in letter case only are one, as on Windows.
class Drives {
public:
    /// The file or folder at `path`; null when there is none. Borrowed, until something is made.
    const File* find(const DrivePath& path) const;
    File* find(const DrivePath& path);

    /// The file or folder at `path`, made when it is missing, with the folders on the way. Whatever was there keeps
    /// its name, and a folder stays one; a file with something below it becomes one.
    File& make(const DrivePath& path, File::Kind kind);

    /// Adds an empty file to a folder that is there, given by its folded path; null when the folder has that name
    /// already. Quicker than make(), for who reads whole drives.
    File* add(const QString& foldedFolder, const QString& name);

    /// Takes the names for what the folder at `path` lists, spelled so and in this order, and makes what is missing.
    void list(const DrivePath& path, const QStringList& names, File::Kind kind);

    /// The names in a folder; empty when `path` is none.
    std::vector<QString> list(const DrivePath& path) const;

    /// The letters of the drives, sorted.
    QStringList letters() const;

    /// Calls `visit` with every file and folder and its path, each folder before what is in it.
    using Visit = std::function<void(const DrivePath& path, const File& file)>;
    void visit(const Visit& visit) const;

    friend bool operator==(const Drives& a, const Drives& b) { return a.m_files == b.m_files; }

private:
    void visit(DrivePath& path, QString& folded, const Visit& visit) const;

    QHash<QString, File> m_files; ///< by folded path
};

/// "C:/GAMES/X": the same for the same file, however a program writes it.
QString foldedPath(const DrivePath& path);

/// The path of the file of this name in the folder.
DrivePath pathIn(const DrivePath& folder, const QString& name);

/// The root of the drive with this letter.
DrivePath rootOf(QChar letter);

} // namespace Recordings
