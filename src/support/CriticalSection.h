#pragma once

#include "platform/Locks.h"

/// One critical section of the system's: a lock that its thread may take again. Taken through a LockGuard.
class CriticalSection {
public:
    CriticalSection()
        : m_section(Platform::newCriticalSection()) {}

    void lock() { Platform::enterCriticalSection(m_section); }

    void unlock() noexcept { Platform::leaveCriticalSection(m_section); }

private:
    Platform::CriticalSectionHandle m_section;
};
