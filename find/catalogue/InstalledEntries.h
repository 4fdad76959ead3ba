#pragma once

#include "trace/Events.h"

#include <QString>

#include <vector>

namespace Find {

struct FinderType;

/// One entry of a list of what is installed.
struct InstalledEntry {
    const FinderType* type = nullptr; ///< of the finders that search the list; never null in what was read
    QString name;                     ///< by which they look it up: a title, or an identifier
    QString place;                    ///< a folder, or the file that a shortcut leads to; may be empty
};

/// All entries of all lists, in the order in which the trace tells of them.
std::vector<InstalledEntry> installedEntries(const std::vector<Trace::Event>& events);

/// Those of one list, each name or each place once.
std::vector<InstalledEntry> distinctEntries(const std::vector<InstalledEntry>& entries, const FinderType& type,
                                            QString InstalledEntry::*what);

} // namespace Find
