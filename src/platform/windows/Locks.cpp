#include "platform/Locks.h"

#include <windows.h>

namespace Platform {

void CriticalSectionDeleter::operator()(void* section) const noexcept {
    auto* const owned = static_cast<CRITICAL_SECTION*>(section);
    ::DeleteCriticalSection(owned);
    delete owned;
}

CriticalSectionHandle newCriticalSection() {
    auto section = std::make_unique<CRITICAL_SECTION>();
    ::InitializeCriticalSection(section.get());
    return CriticalSectionHandle(section.release());
}

void enterCriticalSection(const CriticalSectionHandle& section) {
    ::EnterCriticalSection(static_cast<CRITICAL_SECTION*>(section.get()));
}

void leaveCriticalSection(const CriticalSectionHandle& section) noexcept {
    ::LeaveCriticalSection(static_cast<CRITICAL_SECTION*>(section.get()));
}

} // namespace Platform
