#include "support/Clock.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <limits>

namespace {

/// A system with all its clocks, each with a reading of its own: the counter says 2,500.5 s.
constexpr Clock::Functions complete{[](qint64& ticksPerSecond) {
                                        ticksPerSecond = 10'000'000;
                                        return true;
                                    },
                                    [](qint64& ticks) {
                                        ticks = 25'005'000'000;
                                        return true;
                                    },
                                    [](const char* name) {
                                        EXPECT_STREQ(name, "GetTickCount64");
                                        const auto tickCount64 = []() -> quint64 { return 5'000'000'000; };
                                        return reinterpret_cast<Platform::SystemFunction>(+tickCount64);
                                    },
                                    []() -> quint32 { return 4'294'967'295; }};

bool noCounter(qint64& ticks) {
    ticks = 7; // of no account, as the call fails
    return false;
}

Platform::SystemFunction noFunction(const char* /*name*/) {
    return nullptr;
}

void expectReading(const Clock::Functions& functions, quint64 milliseconds, quint64 microseconds) {
    const Clock clock(functions);
    EXPECT_EQ(clock.milliseconds(), milliseconds);
    EXPECT_EQ(clock.microseconds(), microseconds);
}

TEST(ClockTest, ReadsThePerformanceCounter) {
    expectReading(complete, 2'500'500, 2'500'500'000);
}

TEST(ClockTest, WithoutACounterItReadsGetTickCount64) {
    Clock::Functions functions = complete;
    functions.performanceFrequency = noCounter;
    expectReading(functions, 5'000'000'000, 5'000'000'000'000);
    functions.performanceFrequency = [](qint64& ticksPerSecond) {
        ticksPerSecond = 0;
        return true;
    };
    expectReading(functions, 5'000'000'000, 5'000'000'000'000);
}

TEST(ClockTest, WhereAReadingFailsItReadsGetTickCount64) {
    Clock::Functions functions = complete;
    functions.performanceCounter = noCounter;
    expectReading(functions, 5'000'000'000, 5'000'000'000'000);
}

TEST(ClockTest, WithoutThatAsWellItReadsGetTickCount) {
    Clock::Functions functions = complete;
    functions.performanceCounter = noCounter;
    functions.kernelFunction = noFunction;
    expectReading(functions, 4'294'967'295, 4'294'967'295'000);
}

TEST(ClockTest, TheCounterNeedsNoOtherClock) {
    Clock::Functions functions = complete;
    functions.kernelFunction = noFunction;
    expectReading(functions, 2'500'500, 2'500'500'000);
}

TEST(ClockTest, AsksOnceWhatTheSystemHas) {
    static int questions = 0;
    questions = 0;
    Clock::Functions functions = complete;
    functions.performanceFrequency = [](qint64& ticksPerSecond) {
        ++questions;
        return complete.performanceFrequency(ticksPerSecond);
    };
    functions.kernelFunction = [](const char* name) {
        ++questions;
        return complete.kernelFunction(name);
    };
    const Clock clock(functions);
    EXPECT_EQ(clock.milliseconds(), clock.milliseconds());
    EXPECT_EQ(clock.microseconds(), clock.microseconds());
    EXPECT_EQ(questions, 2);
}

TEST(ClockTest, GoesForwardInBothUnits) {
    QElapsedTimer timer;
    timer.start();
    const quint64 milliseconds = tickCountMs();
    const quint64 microseconds = tickCountUs();
    QThread::msleep(20);
    const quint64 laterMicroseconds = tickCountUs();
    const quint64 laterMilliseconds = tickCountMs();
    const auto upperBound = static_cast<quint64>(timer.elapsed()) + 2;

    EXPECT_GE(laterMilliseconds - milliseconds, 19U);
    EXPECT_LE(laterMilliseconds - milliseconds, upperBound);
    EXPECT_GE(laterMicroseconds - microseconds, 19'000U);
    EXPECT_LE(laterMicroseconds - microseconds, upperBound * 1'000);
}

TEST(ClockTest, ScalesWholeSecondsAndTheRestApart) {
    EXPECT_EQ(Clock::scaled(25'000'000, 10'000'000, 1'000), 2'500U);
    EXPECT_EQ(Clock::scaled(25'000'000, 10'000'000, 1'000'000), 2'500'000U);
    EXPECT_EQ(Clock::scaled(9, 10'000'000, 1'000'000), 0U);
    EXPECT_EQ(Clock::scaled(3'579'546, 3'579'545, 1'000'000), 1'000'000U);
}

TEST(ClockTest, ScalesALargeReadingWithoutOverflow) {
    // Ticks times a million would need 83 bits.
    constexpr quint64 ticks = std::numeric_limits<qint64>::max();
    EXPECT_EQ(Clock::scaled(ticks, 10'000'000, 1'000'000), ticks / 10);
    EXPECT_EQ(Clock::scaled(ticks, 10'000'000, 1'000), ticks / 10'000);
}

} // namespace
