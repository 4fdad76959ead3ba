#pragma once

#include "common/TestPc.h"
#include "core/Locations.h"
#include "support/Logger.h"

#include <gtest/gtest.h>

/// A PC, and what a finder over it logs with and fills.
class FinderTest : public ::testing::Test {
protected:
    TestPc pc;
    Logger logger = Logger::create("Test");
    GameLocation location = usedLocation();
};
