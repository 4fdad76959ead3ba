#pragma once

#include "find/explain/TraceReader.h"
#include "find/record/GeneralFolders.h"
#include "recordings/Drives.h"

#include <QString>
#include <QStringList>

#include <map>

namespace Find {

class Progress;

/// The folders in which finders looked for executables, and what executables are there.
class InstallFolders {
public:
    /// Takes the folder in which the event looked for the probe, or found an executable; nothing of any other event.
    void add(const TraceEvent& event);

    /// Adds the names of the executables below all folders, links not followed. Of a folder that holds more than a game
    /// or two only those directly in it.
    void listExecutables(const GeneralFolders& general, Recordings::Drives& drives, Progress& progress) const;

    /// The folders, on no drive with a letter, in which games may be.
    const QStringList& networkFolders() const { return m_networkFolders; }

private:
    std::map<QString, Recordings::DrivePath> m_folders; // by folded path, so that folders come before those below them
    QStringList m_networkFolders;
};

/// Whether Windows starts a file of this name.
bool isExecutableName(const QString& name);

} // namespace Find
