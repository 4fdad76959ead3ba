#pragma once

#include <QHash>
#include <QString>

#include <vector>

/// How a searched name must fit a catalogue's name. Letter case never matters.
namespace MatchMode {
constexpr int contains = 1; ///< the catalogue's name must contain the searched one; any other number: equal it

/// The mode in words, for the trace: "is named", or what containing is.
inline const char* words(int matchMode) {
    return matchMode == contains ? "has a name that contains" : "is named";
}
} // namespace MatchMode

namespace Text {

/// `text` with the case of each character folded, so that two texts are the same exactly when QString::compare calls
/// them equal with Qt::CaseInsensitive, and one contains another when QString::contains says so. (Unlike
/// QString::toCaseFolded, which also makes "ss" of "ß".)
QString foldCase(const QString& text);

} // namespace Text

/// The entries of an index by an identifier, compared exactly. Made once, with the index; borrows the entries.
template <class Entry>
class IdTable {
public:
    /// Entries are added in index order.
    void add(const QString& id, const Entry& entry) { m_entries[id].push_back(&entry); }

    /// All entries with this identifier, in index order; empty when there are none.
    std::vector<const Entry*> find(const QString& id) const { return m_entries.value(id); }

private:
    QHash<QString, std::vector<const Entry*>> m_entries;
};

/// The entries of an index by a name in which letter case does not matter. Made once, with the index, so that a search
/// folds no name but its own; borrows the entries.
template <class Entry>
class NameTable {
public:
    /// Entries are added in index order.
    void add(const QString& name, const Entry& entry) {
        const QString folded = Text::foldCase(name);
        m_byName.add(folded, entry);
        m_inOrder.push_back({folded, &entry});
    }

    /// All entries whose name fits by `matchMode`, in index order; empty when none does.
    std::vector<const Entry*> find(const QString& name, int matchMode) const {
        const QString folded = Text::foldCase(name);
        if (matchMode != MatchMode::contains) {
            return m_byName.find(folded);
        }
        std::vector<const Entry*> found;
        for (const Named& named : m_inOrder) {
            if (named.foldedName.contains(folded)) {
                found.push_back(named.entry);
            }
        }
        return found;
    }

private:
    struct Named {
        QString foldedName;
        const Entry* entry;
    };

    IdTable<Entry> m_byName;
    std::vector<Named> m_inOrder;
};
