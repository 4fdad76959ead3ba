#pragma once

#include "find/explain/TraceReader.h"
#include "find/record/InstallFolders.h"
#include "recordings/Pc.h"

#include <QStringList>

namespace Find {

class Progress;

/// What finders use of a PC, under its real names.
class PcRecord {
public:
    /// Takes what the trace tells, and from the PC what finders use of the files that they read, and the names of
    /// executables in the folders in which they looked.
    PcRecord(const TraceEvents& events, Progress& progress);

    const Recordings::Pc& pc() const { return m_pc; }

    /// What exists and could not be taken: it is on no drive with a letter, or a file of which nobody knows what
    /// finders use.
    const QStringList& leftOut() const { return m_leftOut; }

private:
    void addFiles(const TraceEvent& event);
    void addExisting(const QString& path);
    void addListing(const Trace::Walk& listing);
    void addContents(const QString& path);
    void addShortcut(const Trace::Shortcut& shortcut);
    void leaveOut(const QString& path);

    Recordings::Pc m_pc;
    InstallFolders m_installFolders;
    QStringList m_leftOut;
};

} // namespace Find
