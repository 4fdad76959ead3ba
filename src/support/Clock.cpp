#include "support/Clock.h"

#include "platform/Clocks.h"
#include "platform/SystemFunctions.h"

namespace {

constexpr quint64 millisecondsPerSecond = 1'000;
constexpr quint64 microsecondsPerSecond = 1'000'000;

using TickCount64 = quint64 (*)();

/// GetTickCount64, which old systems lack; null there.
TickCount64 tickCount64() {
    static const auto kept = reinterpret_cast<TickCount64>(Platform::kernelFunction("GetTickCount64"));
    return kept;
}

/// The performance counter's frequency; 0 when there is no counter.
quint64 counterFrequency() {
    static const quint64 kept = [] {
        qint64 ticksPerSecond = 0;
        return Platform::performanceFrequency(ticksPerSecond) ? static_cast<quint64>(ticksPerSecond) : 0;
    }();
    return kept;
}

quint64 now(quint64 unitsPerSecond) {
    qint64 ticks = 0;
    if (counterFrequency() > 0 && Platform::performanceCounter(ticks)) {
        return Clock::scaled(static_cast<quint64>(ticks), counterFrequency(), unitsPerSecond);
    }
    const quint64 milliseconds = tickCount64() ? tickCount64()() : Platform::tickCount();
    return milliseconds * (unitsPerSecond / millisecondsPerSecond);
}

} // namespace

namespace Clock {

quint64 scaled(quint64 ticks, quint64 ticksPerSecond, quint64 unitsPerSecond) {
    const quint64 seconds = ticks / ticksPerSecond;
    const quint64 rest = ticks % ticksPerSecond;
    return seconds * unitsPerSecond + rest * unitsPerSecond / ticksPerSecond;
}

} // namespace Clock

quint64 tickCountMs() {
    return now(millisecondsPerSecond);
}

quint64 tickCountUs() {
    return now(microsecondsPerSecond);
}
