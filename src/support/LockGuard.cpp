#include "support/LockGuard.h"

#include "support/CriticalSection.h"

#include <new>
#include <system_error>

namespace {

void release(CriticalSection* section) {
    section->unlock();
}

void release(LockGuard::SpinFlag* flag) {
    flag->store(0);
}

void release(std::mutex* mutex) {
    mutex->unlock();
}

} // namespace

LockGuard::LockGuard(CriticalSection& section)
    : m_lock(&section) {
    section.lock();
}

LockGuard::LockGuard(SpinFlag& flag)
    : m_lock(&flag) {
    while (flag.exchange(1) != 0) {
    }
}

LockGuard::LockGuard(std::mutex& mutex)
    : m_lock(&mutex) {
    // A mutex may get its memory at its first lock, and tell by an exception of its own that there is none.
    try {
        mutex.lock();
    } catch (const std::system_error& error) {
        if (error.code() != std::errc::not_enough_memory) {
            throw;
        }
        throw std::bad_alloc();
    }
}

LockGuard::~LockGuard() {
    std::visit([](auto* lock) { release(lock); }, m_lock);
}
