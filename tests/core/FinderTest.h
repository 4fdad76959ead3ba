#pragma once

#include "common/TestPc.h"
#include "core/Locations.h"
#include "support/Logger.h"

#include <gtest/gtest.h>

/// A PC, and what a finder over it logs with and fills.
class FinderTest : public ::testing::Test {
protected:
    /// The finder's answer; `location` then is what the finder made of a used one.
    Answer ask(IGameFinder& finder) {
        const Answer answer = answerOf(finder);
        location = answer.location;
        return answer;
    }

    Answer ask(IGameFinder&& finder) { return ask(finder); }

    TestPc pc;
    Logger logger = Logger::create("Test");
    GameLocation location = usedLocation();
};
