#include "find/catalogue/InstalledEntries.h"

#include "find/catalogue/FinderTypes.h"

#include <QHash>
#include <QSet>

namespace Find {

namespace {

class EntryReader {
public:
    void operator()(const Trace::IndexBegin& event) { m_lists.push_back(finderTypeOfList(event.name)); }

    void operator()(const Trace::IndexEnd&) {
        if (!m_lists.empty()) {
            m_lists.pop_back();
        }
    }

    void operator()(const Trace::Entry& event) {
        if (!m_lists.empty() && m_lists.back() != nullptr) {
            m_entries.push_back({m_lists.back(), event.name, event.folder});
        }
    }

    void operator()(const Trace::Shortcut& event) {
        if (!event.target.isEmpty()) {
            m_targets.insert(event.path, event.target);
        }
    }

    /// The trace has no list of packages, but each that was asked for.
    void operator()(const Trace::Package& event) {
        static const FinderType* const universalApp = findFinderType(QStringLiteral("universalApp"));
        if (!event.fullName.isEmpty() && !m_packages.contains(event.family)) {
            m_packages.insert(event.family);
            m_entries.push_back({universalApp, event.family, event.fullName});
        }
    }

    template <class OtherEvent>
    void operator()(const OtherEvent&) {}

    /// With the shortcuts' targets, which are told later than the list of shortcuts.
    std::vector<InstalledEntry> entries() const {
        std::vector<InstalledEntry> entries = m_entries;
        for (InstalledEntry& entry : entries) {
            entry.place = m_targets.value(entry.place, entry.place);
        }
        return entries;
    }

private:
    std::vector<const FinderType*> m_lists; ///< that are being made, the last one for that before it
    std::vector<InstalledEntry> m_entries;
    QHash<QString, QString> m_targets;
    QSet<QString> m_packages;
};

} // namespace

std::vector<InstalledEntry> installedEntries(const std::vector<Trace::Event>& events) {
    EntryReader reader;
    for (const Trace::Event& event : events) {
        std::visit(reader, event);
    }
    return reader.entries();
}

std::vector<InstalledEntry> distinctEntries(const std::vector<InstalledEntry>& entries, const FinderType& type,
                                            QString InstalledEntry::*what) {
    std::vector<InstalledEntry> distinct;
    QSet<QString> known;
    for (const InstalledEntry& entry : entries) {
        if (entry.type == &type && !known.contains(entry.*what)) {
            known.insert(entry.*what);
            distinct.push_back(entry);
        }
    }
    return distinct;
}

} // namespace Find
