#pragma once

#include "platform/SystemFunctions.h"

#include <QtGlobal>

/// A clock that only goes forward, from an arbitrary start. Any thread may call.
quint64 tickCountMs();
quint64 tickCountUs();

/// The same over given functions. What the system has of them is asked once, when the clock is made.
class Clock {
public:
    struct Functions {
        bool (*performanceFrequency)(qint64& ticksPerSecond);
        bool (*performanceCounter)(qint64& ticks);
        Platform::SystemFunction (*kernelFunction)(const char* name);
        quint32 (*tickCount)();
    };

    explicit Clock(const Functions& functions);

    quint64 milliseconds() const;
    quint64 microseconds() const;

    /// A performance-counter reading in units of 1/`unitsPerSecond` s; whole seconds and the rest are scaled apart, so
    /// that no product overflows. `ticksPerSecond` is above zero.
    static quint64 scaled(quint64 ticks, quint64 ticksPerSecond, quint64 unitsPerSecond);

private:
    using TickCount64 = quint64 (*)();

    quint64 now(quint64 unitsPerSecond) const;

    Functions m_functions;
    TickCount64 m_tickCount64;  ///< GetTickCount64, which old systems lack; null there
    quint64 m_counterFrequency; ///< 0 when there is no counter
};
