#include "find/catalogue/IndexEntries.h"

#include <algorithm>

namespace Find {

namespace {

template <class IsSame>
void addNew(std::vector<IndexEntry>& entries, const IndexEntry& entry, IsSame isSame) {
    if (std::none_of(entries.begin(), entries.end(), [&](const IndexEntry& known) { return isSame(known, entry); })) {
        entries.push_back(entry);
    }
}

} // namespace

IndexEntries::IndexEntries(const std::vector<Trace::Event>& events) {
    QStringList indexes; // the lists that are being made, the last one for that before it
    for (const Trace::Event& event : events) {
        const auto* const entry = std::get_if<Trace::Entry>(&event);
        if (const auto* const begin = std::get_if<Trace::IndexBegin>(&event)) {
            indexes.append(begin->name);
        } else if (std::holds_alternative<Trace::IndexEnd>(event) && !indexes.isEmpty()) {
            indexes.removeLast();
        } else if (entry != nullptr && !indexes.isEmpty()) {
            m_entries[indexes.last()].push_back({entry->name, entry->folder});
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

} // namespace Find
