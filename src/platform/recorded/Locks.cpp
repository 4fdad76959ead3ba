#include "platform/Locks.h"

#include <mutex>

namespace Platform {

void CriticalSectionDeleter::operator()(void* section) const noexcept {
    delete static_cast<std::recursive_mutex*>(section);
}

CriticalSectionHandle newCriticalSection() {
    return CriticalSectionHandle(new std::recursive_mutex);
}

void enterCriticalSection(const CriticalSectionHandle& section) {
    static_cast<std::recursive_mutex*>(section.get())->lock();
}

void leaveCriticalSection(const CriticalSectionHandle& section) noexcept {
    static_cast<std::recursive_mutex*>(section.get())->unlock();
}

} // namespace Platform
