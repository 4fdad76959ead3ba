#include "Benchmarks.h"

#include <algorithm>
#include <cstdlib>

#include <malloc.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void __libc_free(void* memory);
}

namespace {

// Of the only thread.
std::size_t used = 0;
std::size_t peak = 0;

void* counted(void* memory) noexcept {
    used += ::malloc_usable_size(memory);
    peak = std::max(peak, used);
    return memory;
}

} // namespace

// In place of the C library's, for all that the process allocates.

extern "C" void* malloc(std::size_t size) noexcept {
    return counted(__libc_malloc(size));
}

extern "C" void* calloc(std::size_t count, std::size_t size) noexcept {
    return counted(__libc_calloc(count, size));
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept {
    used -= ::malloc_usable_size(memory);
    return counted(__libc_realloc(memory, size));
}

extern "C" void free(void* memory) noexcept {
    used -= ::malloc_usable_size(memory);
    __libc_free(memory);
}

std::size_t Benchmarks::peakMemory(const std::function<void()>& work) {
    const std::size_t before = peak = used;
    work();
    return peak - before;
}

void Benchmarks::programs(const Figures&, int, int) {} // a recorded PC runs none
