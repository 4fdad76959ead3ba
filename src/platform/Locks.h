#pragma once

#include <memory>

/// The system's own locks.
namespace Platform {

struct CriticalSectionDeleter {
    void operator()(void* section) const noexcept; // DeleteCriticalSection
};

/// Owns one critical section: a lock that its thread may take again.
using CriticalSectionHandle = std::unique_ptr<void, CriticalSectionDeleter>;

CriticalSectionHandle newCriticalSection();                               // InitializeCriticalSection
void enterCriticalSection(const CriticalSectionHandle& section);          // EnterCriticalSection
void leaveCriticalSection(const CriticalSectionHandle& section) noexcept; // LeaveCriticalSection

} // namespace Platform
