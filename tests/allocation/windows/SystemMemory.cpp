#include "allocation/SystemMemory.h"

#include <cstdlib>

// Only operator new of the program itself can be made to fail here: Qt and the C++ library are DLLs with their own.

void* SystemMemory::allocate(std::size_t size) noexcept {
    return mayAllocate() ? std::malloc(size) : nullptr;
}

void SystemMemory::run(const std::function<void()>& work) {
    work();
}

bool SystemMemory::nothingLeaked() {
    return true;
}

SystemMemory::UncheckedLeaks::UncheckedLeaks() = default;

SystemMemory::UncheckedLeaks::~UncheckedLeaks() = default;
