#include "support/RowsByHash.h"

#include "support/Room.h"

#include <algorithm>

namespace {

constexpr std::size_t fewestSlots = 8;

} // namespace

void RowsByHash::reserve() {
    makeRoom(m_rows, 1);
    if (m_rows.size() < m_slots.size()) {
        return;
    }
    std::vector<Slot> slots(std::max(fewestSlots, m_slots.size() * 2));
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
