#pragma once

#include "recordings/DrivePath.h"

#include <QProcessEnvironment>
#include <QSet>
#include <QString>

namespace Find {

/// The folders that hold much more than a game, so that what is below them is nobody's business who looks for a game's
/// executables: a drive's root, Windows' own folders, those of all programs, of the users and of their documents. An
/// uninstaller may lie in any of them.
class GeneralFolders {
public:
    /// Those that every Windows has, and those that the environment names.
    explicit GeneralFolders(const QProcessEnvironment& environment);

    /// Does nothing with a path that has no drive letter.
    void add(const QString& folder);

    bool contains(const Recordings::DrivePath& folder) const;

private:
    bool isOfProfile(const QString& path) const;

    QSet<QString> m_folders; // by folded path
    QSet<QString> m_windows; // those whose folders belong to them
    QSet<QString> m_profiles;
};

} // namespace Find
