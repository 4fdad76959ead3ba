#pragma once

#include "support/Room.h"
#include "support/RowsByHash.h"
#include "support/Text.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
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
/// A row is made first and entered later, before the next one is made. Only making it can fail, so that an entry can
/// come into a list and into several tables in one step.
template <class Entry>
class IdTable {
    struct Identified {
        QString id;
        Entry entry;
    };

public:
    class Row {
    public:
        void enter() noexcept {
            m_table->m_hashes.add(qHash(m_row.id));
            m_table->m_rows.push_back(std::move(m_row));
        }

    private:
        friend class IdTable;

        Row(IdTable* table, Identified&& row)
            : m_table(table)
            , m_row(std::move(row)) {}

        IdTable* m_table;
        Identified m_row;
    };

    /// Rows are entered in index order.
    Row row(const QString& id, const Entry& entry) {
        reserve(1);
        return Row(this, {id, entry});
    }

    /// Makes room for so many more rows at once, which takes less memory than to grow row by row.
    void reserve(std::size_t more) {
        makeRoom(m_rows, more);
        m_hashes.reserve(more);
    }

    /// All entries with this identifier, in index order; empty when there are none.
    std::vector<Entry> find(const QString& id) const {
        std::vector<Entry> found;
        m_hashes.each(qHash(id), [this, &id, &found](std::size_t row) {
            if (m_rows[row].id == id) {
                found.push_back(m_rows[row].entry);
            }
        });
        return found;
    }

private:
    std::vector<Identified> m_rows;
    RowsByHash m_hashes;
};

/// The entries of an index by a name in which letter case does not matter. Their names are folded once, when the rows
/// are entered, so that a search folds no name but its own; and they lie in one piece, through which a search for a
/// part runs at once.
template <class Entry>
class NameTable {
    struct Named {
        std::size_t end; ///< of its name, which begins where the one before ends
        Entry entry;
    };

public:
    class Row {
    public:
        void enter() noexcept { m_table->add(m_name, std::move(m_entry)); }

    private:
        friend class NameTable;

        Row(NameTable* table, const QString& name, const Entry& entry)
            : m_table(table)
            , m_name(name)
            , m_entry(entry) {}

        NameTable* m_table;
        QString m_name;
        Entry m_entry;
    };

    /// Rows are entered in index order.
    Row row(const QString& name, const Entry& entry) {
        makeRoom(m_names, static_cast<std::size_t>(name.size()));
        reserve(1);
        return Row(this, name, entry);
    }

    /// As that of IdTable.
    void reserve(std::size_t more) {
        makeRoom(m_rows, more);
        m_hashes.reserve(more);
    }

    /// All entries whose name fits by `matchMode`, in index order; empty when none does.
    std::vector<Entry> find(const QString& name, int matchMode) const {
        const QString folded = Text::foldCase(name);
        const std::u16string_view sought(reinterpret_cast<const char16_t*>(folded.utf16()),
                                         static_cast<std::size_t>(folded.size()));
        std::vector<Entry> found;
        if (matchMode != MatchMode::contains) {
            m_hashes.each(hashOf(sought), [this, &sought, &found](std::size_t row) {
                if (nameOf(row) == sought) {
                    found.push_back(m_rows[row].entry);
                }
            });
            return found;
        }
        for (std::size_t row = firstContaining(sought, 0); row < m_rows.size();
             row = firstContaining(sought, row + 1)) {
            found.push_back(m_rows[row].entry);
        }
        return found;
    }

private:
    static uint hashOf(std::u16string_view text) noexcept {
        return qHash(QStringView(text.data(), static_cast<qsizetype>(text.size())));
    }

    void add(const QString& name, Entry&& entry) noexcept {
        const std::size_t begin = m_names.size();
        m_names.append(reinterpret_cast<const char16_t*>(name.constData()), static_cast<std::size_t>(name.size()));
        Text::foldCase(reinterpret_cast<QChar*>(&m_names[begin]), m_names.size() - begin);
        m_rows.push_back({m_names.size(), std::move(entry)});
        m_hashes.add(hashOf(nameOf(m_rows.size() - 1)));
    }

    std::size_t beginOf(std::size_t row) const noexcept { return row == 0 ? 0 : m_rows[row - 1].end; }

    std::u16string_view nameOf(std::size_t row) const noexcept {
        return std::u16string_view(m_names).substr(beginOf(row), m_rows[row].end - beginOf(row));
    }

    /// The number of the first such row at or after `from`; a number behind the last when there is none.
    std::size_t firstContaining(std::u16string_view sought, std::size_t from) const noexcept {
        if (sought.empty() || from >= m_rows.size()) {
            return from;
        }
        std::size_t place = Text::indexOf(m_names, sought, beginOf(from));
        while (place != std::u16string_view::npos) {
            const auto row = std::upper_bound(m_rows.begin(), m_rows.end(), place,
                                              [](std::size_t at, const Named& named) { return at < named.end; });
            if (place + sought.size() <= row->end) {
                return static_cast<std::size_t>(row - m_rows.begin());
            }
            place = Text::indexOf(m_names, sought, place + 1); // it went over into the next name
        }
        return m_rows.size();
    }

    std::u16string m_names; ///< folded
    std::vector<Named> m_rows;
    RowsByHash m_hashes;
};
