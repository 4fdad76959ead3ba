#pragma once

#include <cstddef>

/// What the failing of allocations needs of the build that it runs in.
namespace SystemMemory {

/// Asked before each allocation; false for the one that is to fail.
bool mayAllocate() noexcept;

/// malloc, unless the allocation is to fail.
void* allocate(std::size_t size) noexcept;

/// What the build's leak checker says so far; true without one.
bool nothingLeaked();

} // namespace SystemMemory
