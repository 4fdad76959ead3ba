#pragma once

#include <QProcess>

#include <gtest/gtest.h>

/// Starts the program that `process` names and waits until it has ended by itself; the test fails when it does not.
inline void runToItsEnd(QProcess& process) {
    constexpr int attempts = 3;
    constexpr int longestRunMs = 30'000;
    // On a busy machine Wine now and then fails to start a program at all.
    bool hasStarted = false;
    for (int i = 0; i < attempts && !hasStarted; ++i) {
        process.start();
        hasStarted = process.waitForStarted();
    }
    EXPECT_TRUE(hasStarted && process.waitForFinished(longestRunMs))
        << process.program().toStdString() << ": " << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << process.program().toStdString();
}
