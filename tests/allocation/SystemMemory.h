#pragma once

#include <cstddef>
#include <functional>

/// What the failing of allocations needs of the build that it runs in.
namespace SystemMemory {

/// Asked before each allocation; false for the one that is to fail.
bool mayAllocate() noexcept;

/// Called before an allocation is to fail, whenever something that allocates may have been loaded.
void prepare();

/// malloc, unless the allocation is to fail.
void* allocate(std::size_t size) noexcept;

/// Whether Qt's own allocations are left out from now on, where they can be told apart.
void spareQt(bool isSpared);

void release(void* memory) noexcept;

/// Does the work so that an allocation of Qt's own that fails does not stop the process later.
void run(const std::function<void()>& work);

/// How many blocks of memory the test, the plug-in and Qt have; 0 in a build with a leak checker of its own.
long blocks();

/// What the build's leak checker says so far; true without one.
bool nothingLeaked();

} // namespace SystemMemory
