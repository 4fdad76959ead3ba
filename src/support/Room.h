#pragma once

#include <algorithm>
#include <cstddef>

/// Makes room for `more` elements at a container's end, so that adding them can't fail; in growing steps, as reserve()
/// by itself would take a step for each. Steps of a half, as the old elements lie beside the new ones for a moment.
template <class Container>
void makeRoom(Container& container, std::size_t more) {
    const std::size_t needed = container.size() + more;
    if (container.capacity() < needed) {
        container.reserve(std::max(needed, container.capacity() / 2 * 3));
    }
}
