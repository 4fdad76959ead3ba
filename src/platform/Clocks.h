#pragma once

#include <QtGlobal>

/// The time of day, and the clocks that only go forward.
namespace Platform {

struct LocalTime {
    quint16 year = 0;
    quint16 month = 0;
    quint16 day = 0;
    quint16 hour = 0;
    quint16 minute = 0;
    quint16 second = 0;
    quint16 milliseconds = 0;
};

LocalTime localTime() noexcept; // GetLocalTime

bool performanceFrequency(qint64& ticksPerSecond); // QueryPerformanceFrequency
bool performanceCounter(qint64& ticks);            // QueryPerformanceCounter
quint32 tickCount();                               // GetTickCount

} // namespace Platform
