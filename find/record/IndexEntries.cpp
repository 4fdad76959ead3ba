#include "find/record/IndexEntries.h"

#include <algorithm>

namespace Host {

namespace {

template <class IsSame>
void addNew(std::vector<IndexEntry>& entries, const IndexEntry& entry, IsSame isSame) {
    if (std::none_of(entries.begin(), entries.end(), [&](const IndexEntry& known) { return isSame(known, entry); })) {
        entries.push_back(entry);
    }
}

bool isIndex(const TraceEvent& event) {
    return event.text("what") == QLatin1String("index");
}

} // namespace

IndexEntries::IndexEntries(const TraceEvents& events) {
    QString index; // the list that is being made
    for (const TraceEvent& event : events) {
        if (event.is("begin") && isIndex(event)) {
            index = event.text("name");
        } else if (event.is("end") && isIndex(event)) {
            index.clear();
        } else if (event.is("entry") && !index.isEmpty()) {
            m_entries[index].push_back({event.text("name"), event.text("folder")});
        }
    }
}

std::vector<IndexEntry> IndexEntries::of(const char* index) const {
    const auto found = m_entries.find(QLatin1String(index));
    std::vector<IndexEntry> entries;
    if (found != m_entries.end()) {
        for (const IndexEntry& entry : found->second) {
            addNew(entries, entry, [](const IndexEntry& a, const IndexEntry& b) { return a.name == b.name; });
        }
    }
    return entries;
}

std::vector<IndexEntry> IndexEntries::onePerFolder(const char* index) const {
    const auto found = m_entries.find(QLatin1String(index));
    std::vector<IndexEntry> entries;
    if (found != m_entries.end()) {
        for (const IndexEntry& entry : found->second) {
            addNew(entries, entry, [](const IndexEntry& a, const IndexEntry& b) { return a.folder == b.folder; });
        }
    }
    return entries;
}

} // namespace Host
