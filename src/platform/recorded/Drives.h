#pragma once

#include "platform/recorded/HostFiles.h"
#include "recordings/DrivePath.h"

#include <QByteArray>
#include <QSet>

#include <optional>
#include <vector>

namespace Recorded {

/// The drives of a recorded PC: finds the real file behind a Windows path. Nothing is remembered between two
/// questions.
class Drives {
public:
    struct File {
        QByteArray realPath;

        struct stat info {};

        bool isFolder() const { return S_ISDIR(info.st_mode); }
    };

    /// No drives.
    Drives() = default;

    /// The drives in `folder`, one folder each, named by its letter; `hidden` and `system` are the paths that have the
    /// attribute.
    Drives(QByteArray folder, const QStringList& hidden, const QStringList& system);

    /// The file or folder at `path`; empty when there is none or it can't be examined. Links count as what they lead
    /// to.
    std::optional<File> find(const Recordings::DrivePath& path) const;

    /// The names in a folder in NTFS's order, without "." and "..". A link back to a folder on the way is left out, so
    /// that every walk ends. Empty when `path` is no folder or can't be read.
    std::vector<QString> list(const Recordings::DrivePath& path) const;

    bool isHidden(const Recordings::DrivePath& path) const;
    bool isSystem(const Recordings::DrivePath& path) const;

private:
    std::vector<struct stat> foldersOnTheWay(Recordings::DrivePath path) const;

    QByteArray m_folder;
    QSet<QString> m_hidden; // by folded path, as below
    QSet<QString> m_system;
};

} // namespace Recorded
