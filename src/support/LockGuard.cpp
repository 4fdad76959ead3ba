#include "support/LockGuard.h"

#include "support/CriticalSection.h"

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
    mutex.lock();
}

LockGuard::~LockGuard() {
    std::visit([](auto* lock) { release(lock); }, m_lock);
}
