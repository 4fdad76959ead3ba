#pragma once

#include "FindProgram.h"

#include "find/pc/System.h"

#include <gtest/gtest.h>

#include <ostream>

inline bool operator==(const FindRun& left, const FindRun& right) {
    return left.exitStatus == right.exitStatus && left.output == right.output && left.errors == right.errors;
}

inline void PrintTo(const FindRun& run, std::ostream* stream) {
    *stream << "exit status " << run.exitStatus << ", output:\n"
            << run.output.toStdString() << "errors:\n"
            << run.errors.toStdString();
}

/// A run that printed this and complained of nothing.
inline FindRun printed(int exitStatus, const QString& output) {
    return {exitStatus, output, {}};
}

/// A run that failed with these complaints and printed nothing.
inline FindRun failed(const QString& errors) {
    return {2, {}, errors};
}

/// A test that runs luruludri-find.
class FindTest : public ::testing::Test {
protected:
    FindProgram program;
};

/// The same for what only a program that knows recorded PCs can do: not the Windows build.
class RecordingFindTest : public FindTest {
protected:
    void SetUp() override {
        if (Find::isPcItself()) {
            GTEST_SKIP() << "no recordings here";
        }
    }
};
