#pragma once

#include "common/TestPc.h"

#include <gtest/gtest.h>

/// A test over a PC.
class PcTest : public ::testing::Test {
protected:
    TestPc pc;
};
