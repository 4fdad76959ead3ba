#pragma once

#include "support/Text.h"

#include <QString>

#include <list>
#include <map>
#include <utility>
#include <vector>

/// How a searched name must fit an entry's name. Letter case never matters.
namespace MatchMode {
constexpr int equals = 0;
constexpr int contains = 1; ///< the entry's name must contain the searched one; any other number: equal it

/// The mode in words, for the trace: "is named", or what containing is.
inline const char* words(int matchMode) {
    return matchMode == contains ? "has a name that contains" : "is named";
}
} // namespace MatchMode

/// The entries of an index by an identifier, compared exactly.
///
/// A row is made first and entered later. Only making it can fail, so that an entry can come into a list and into
/// several tables in one step.
template <class Entry>
class IdTable {
    using Rows = std::multimap<QString, Entry>;

public:
    class Row {
    public:
        void enter() noexcept { m_rows->insert(std::move(m_row)); }

    private:
        friend class IdTable;

        Row(Rows* rows, typename Rows::node_type&& row)
            : m_rows(rows)
            , m_row(std::move(row)) {}

        Rows* m_rows;
        typename Rows::node_type m_row;
    };

    /// Rows are entered in index order.
    Row row(const QString& id, const Entry& entry) {
        Rows one;
        return Row(&m_rows, one.extract(one.emplace(id, entry)));
    }

    /// All entries with this identifier, in index order; empty when there are none.
    std::vector<Entry> find(const QString& id) const {
        std::vector<Entry> found;
        const auto rows = m_rows.equal_range(id);
        for (auto row = rows.first; row != rows.second; ++row) {
            found.push_back(row->second);
        }
        return found;
    }

private:
    Rows m_rows; ///< of the same identifier in the order in which they came
};

/// The entries of an index by a name in which letter case does not matter. Their names are folded once, when the rows
/// are made, so that a search folds no name but its own.
template <class Entry>
class NameTable {
    struct Named {
        QString foldedName;
        Entry entry;
    };

public:
    class Row {
    public:
        void enter() noexcept {
            m_byName.enter();
            m_inOrder->splice(m_inOrder->end(), m_named);
        }

    private:
        friend class NameTable;

        Row(typename IdTable<Entry>::Row&& byName, std::list<Named>* inOrder, std::list<Named>&& named)
            : m_byName(std::move(byName))
            , m_inOrder(inOrder)
            , m_named(std::move(named)) {}

        typename IdTable<Entry>::Row m_byName;
        std::list<Named>* m_inOrder;
        std::list<Named> m_named; ///< the one, until it is entered
    };

    /// Rows are entered in index order.
    Row row(const QString& name, const Entry& entry) {
        const QString folded = Text::foldCase(name);
        return Row(m_byName.row(folded, entry), &m_inOrder, {{folded, entry}});
    }

    /// All entries whose name fits by `matchMode`, in index order; empty when none does.
    std::vector<Entry> find(const QString& name, int matchMode) const {
        const QString folded = Text::foldCase(name);
        if (matchMode != MatchMode::contains) {
            return m_byName.find(folded);
        }
        std::vector<Entry> found;
        for (const Named& named : m_inOrder) {
            if (named.foldedName.contains(folded)) {
                found.push_back(named.entry);
            }
        }
        return found;
    }

private:
    IdTable<Entry> m_byName;
    std::list<Named> m_inOrder;
};
