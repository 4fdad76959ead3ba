#include "support/RowsByHash.h"

#include "support/Room.h"

#include <algorithm>

namespace {

constexpr std::size_t fewestSlots = 8;

} // namespace

void RowsByHash::reserve(std::size_t more) {
    makeRoom(m_rows, more);
    std::size_t count = std::max(fewestSlots, m_slots.size());
    while (count < m_rows.size() + more) {
        count *= 2;
    }
    if (count == m_slots.size()) {
        return;
    }
    std::vector<Slot> slots(count);
    m_slots.swap(slots);
    for (Number number = 0; number < m_rows.size(); ++number) {
        append(number);
    }
}

void RowsByHash::add(uint hash) noexcept {
    m_rows.push_back({hash, none});
    append(static_cast<Number>(m_rows.size() - 1));
}

void RowsByHash::append(Number number) noexcept {
    m_rows[number].next = none;
    Slot& slot = m_slots[slotOf(m_rows[number].hash)];
    (slot.first == none ? slot.first : m_rows[slot.last].next) = number;
    slot.last = number;
}
