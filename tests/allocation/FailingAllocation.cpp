#include "allocation/FailingAllocation.h"

#include "allocation/SystemMemory.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int never = -1;

thread_local int allocationsLeft = never;
thread_local bool failed = false;

} // namespace

bool SystemMemory::mayAllocate() noexcept {
    if (allocationsLeft == never) {
        return true;
    }
    if (allocationsLeft == 0) {
        allocationsLeft = never;
        failed = true;
        return false;
    }
    --allocationsLeft;
    return true;
}

FailingAllocation::FailingAllocation(int countdown) {
    SystemMemory::prepare();
    failed = false;
    allocationsLeft = countdown;
}

FailingAllocation::~FailingAllocation() {
    allocationsLeft = never;
}

bool FailingAllocation::hasFailed() const {
    return failed;
}

bool FailingAllocation::nothingLeaked() {
    return SystemMemory::nothingLeaked();
}

void* operator new(std::size_t size) {
    void* const memory = SystemMemory::allocate(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept {
    SystemMemory::release(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    SystemMemory::release(memory);
}
