#include "support/Platform.h"

#include <chrono>
#include <ctime>
#include <mutex>

#include <unistd.h>

namespace Platform {

quint32 currentProcessId() {
    return static_cast<quint32>(::getpid());
}

LocalTime localTime() noexcept {
    timespec now{};
    std::tm local{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    ::localtime_r(&now.tv_sec, &local);
    LocalTime time;
    time.year = static_cast<quint16>(local.tm_year + 1900);
    time.month = static_cast<quint16>(local.tm_mon + 1);
    time.day = static_cast<quint16>(local.tm_mday);
    time.hour = static_cast<quint16>(local.tm_hour);
    time.minute = static_cast<quint16>(local.tm_min);
    time.second = static_cast<quint16>(local.tm_sec);
    time.milliseconds = static_cast<quint16>(now.tv_nsec / 1000000);
    return time;
}

bool performanceFrequency(qint64& ticksPerSecond) {
    ticksPerSecond = std::nano::den;
    return true;
}

bool performanceCounter(qint64& ticks) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    ticks = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
    return true;
}

quint32 tickCount() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<quint32>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

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
