#include "platform/Clocks.h"

#include <windows.h>

namespace Platform {

LocalTime localTime() noexcept {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

bool performanceFrequency(qint64& ticksPerSecond) {
    LARGE_INTEGER frequency{};
    const bool known = ::QueryPerformanceFrequency(&frequency) != 0;
    ticksPerSecond = frequency.QuadPart;
    return known;
}

bool performanceCounter(qint64& ticks) {
    LARGE_INTEGER counter{};
    const bool known = ::QueryPerformanceCounter(&counter) != 0;
    ticks = counter.QuadPart;
    return known;
}

quint32 tickCount() {
    return ::GetTickCount();
}

} // namespace Platform
