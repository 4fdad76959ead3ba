#pragma once

#include "trace/Events.h"

#include <QString>

#include <map>
#include <vector>

namespace Find {

/// One entry of a list of what is installed: the name by which finders look it up, and the folder that it tells.
struct IndexEntry {
    QString name;
    QString folder;
};

/// The lists of what is installed, as a trace tells of them.
class IndexEntries {
public:
    explicit IndexEntries(const std::vector<Trace::Event>& events);

    /// The entries of the list of that name (Trace::IndexName), each once; empty when it was not made.
    std::vector<IndexEntry> of(const char* index) const;

    /// The first entry of each folder.
    std::vector<IndexEntry> onePerFolder(const char* index) const;

private:
    std::map<QString, std::vector<IndexEntry>> m_entries;
};

} // namespace Find
