#pragma once

// Microsoft's own iterators, which Qt's headers use.

#include <stddef.h>

namespace stdext {

template <class Iterator>
Iterator make_unchecked_array_iterator(Iterator iterator) {
    return iterator;
}

template <class Iterator>
Iterator make_checked_array_iterator(Iterator iterator, size_t) {
    return iterator;
}

} // namespace stdext
