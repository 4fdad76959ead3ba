#include "support/Clock.h"

#include "platform/Clocks.h"
#include "support/FirstOffered.h"

#include <memory>

namespace {

constexpr quint64 millisecondsPerSecond = 1'000;
constexpr quint64 microsecondsPerSecond = 1'000'000;

quint64 frequencyOf(const Clock::Functions& functions) {
    qint64 ticksPerSecond = 0;
    return functions.performanceFrequency(ticksPerSecond) ? static_cast<quint64>(ticksPerSecond) : 0;
}

FirstOffered<const Clock> kept;

const Clock& systemClock() {
    return kept.getOrOffer([] {
        return std::make_unique<const Clock>(Clock::Functions{Platform::performanceFrequency,
                                                              Platform::performanceCounter, Platform::kernelFunction,
                                                              Platform::tickCount});
    });
}

} // namespace

Clock::Clock(const Functions& functions)
    : m_functions(functions)
    , m_tickCount64(reinterpret_cast<TickCount64>(functions.kernelFunction("GetTickCount64")))
    , m_counterFrequency(frequencyOf(functions)) {}

quint64 Clock::milliseconds() const {
    return now(millisecondsPerSecond);
}

quint64 Clock::microseconds() const {
    return now(microsecondsPerSecond);
}

quint64 Clock::now(quint64 unitsPerSecond) const {
    qint64 ticks = 0;
    if (m_counterFrequency > 0 && m_functions.performanceCounter(ticks)) {
        return scaled(static_cast<quint64>(ticks), m_counterFrequency, unitsPerSecond);
    }
    const quint64 milliseconds = m_tickCount64 ? m_tickCount64() : m_functions.tickCount();
    return milliseconds * (unitsPerSecond / millisecondsPerSecond);
}

quint64 Clock::scaled(quint64 ticks, quint64 ticksPerSecond, quint64 unitsPerSecond) {
    const quint64 seconds = ticks / ticksPerSecond;
    const quint64 rest = ticks % ticksPerSecond;
    return seconds * unitsPerSecond + rest * unitsPerSecond / ticksPerSecond;
}

quint64 tickCountMs() {
    return systemClock().milliseconds();
}

quint64 tickCountUs() {
    return systemClock().microseconds();
}
