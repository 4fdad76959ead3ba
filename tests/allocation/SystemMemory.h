#pragma once

#include <QtGlobal>

#include <cstddef>
#include <functional>

/// What the failing of allocations needs of the build that it runs in.
namespace SystemMemory {

/// Asked before each allocation; false for the one that is to fail.
bool mayAllocate() noexcept;

/// malloc, unless the allocation is to fail.
void* allocate(std::size_t size) noexcept;

/// Does the work so that an allocation of Qt's own that fails does not stop the process later.
void run(const std::function<void()>& work);

/// What the build's leak checker says so far; true without one.
bool nothingLeaked();

/// While it lives, the leak checker looks away from what this thread allocates.
class UncheckedLeaks {
public:
    UncheckedLeaks();
    ~UncheckedLeaks();

private:
    Q_DISABLE_COPY_MOVE(UncheckedLeaks)
};

} // namespace SystemMemory
