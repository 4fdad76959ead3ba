#include "platform/Clocks.h"

#include <chrono>
#include <ctime>

namespace Platform {

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

} // namespace Platform
