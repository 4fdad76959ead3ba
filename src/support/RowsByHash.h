#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

/// The numbers of a table's rows by the hashes of what they are looked up by. A row takes eight bytes and no memory of
/// its own, which is what makes it cheaper than one of the library's maps.
class RowsByHash {
public:
    /// Makes room for so many more rows, so that add() can't fail.
    void reserve(std::size_t more);

    /// The row that comes next: they are numbered from 0.
    void add(uint hash) noexcept;

    /// Calls `row` with the numbers of all rows of this hash, in their order.
    template <class Each>
    void each(uint hash, const Each& row) const {
        if (m_slots.empty()) {
            return;
        }
        for (Number number = m_slots[slotOf(hash)].first; number != none; number = m_rows[number].next) {
            if (m_rows[number].hash == hash) {
                row(std::size_t{number});
            }
        }
    }

private:
    using Number = quint32;
    static constexpr Number none = ~Number{0};

    struct Row {
        uint hash;
        Number next; ///< in the same slot
    };

    struct Slot {
        Number first = none;
        Number last = none;
    };

    std::size_t slotOf(uint hash) const noexcept { return hash & (m_slots.size() - 1); }

    void append(Number number) noexcept;

    std::vector<Row> m_rows;
    std::vector<Slot> m_slots; ///< as many as a power of two
};
