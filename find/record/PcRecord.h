#pragma once

#include "find/explain/TraceReader.h"
#include "find/record/DriveRecord.h"
#include "find/record/InstallFolders.h"
#include "find/record/PcFacts.h"
#include "find/record/RegistryRecord.h"

#include <QStringList>

namespace Host {

class Progress;

/// All that a recording takes from a PC, under its real names.
class PcRecord {
public:
    /// Takes what the trace tells, and from the PC the contents of the files that finders read and the names of
    /// executables in the folders in which they looked.
    PcRecord(const TraceEvents& events, Progress& progress);

    const RegistryRecord& registry() const { return m_registry; }

    const DriveRecord& drives() const { return m_drives; }

    const PcFacts& facts() const { return m_facts; }

    /// What exists and could not be taken, as it is on no drive with a letter.
    const QStringList& leftOut() const { return m_leftOut; }

    int executableCount() const;

private:
    void addFiles(const TraceEvent& event);
    void addExisting(const QString& path);
    void addListing(const TraceEvent& event, const Recordings::DrivePath& folder);
    void leaveOut(const QString& path);

    RegistryRecord m_registry;
    DriveRecord m_drives;
    PcFacts m_facts;
    InstallFolders m_installFolders;
    QStringList m_leftOut;
};

} // namespace Host
