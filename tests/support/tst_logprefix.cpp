#include "support/LogPrefix.h"

#include <gtest/gtest.h>

namespace {

TEST(LogPrefix, IsTheTimeAndTheLetter) {
    EXPECT_STREQ(logPrefix({2024, 12, 31, 23, 59, 58, 987}, 'W').data(), "2024:12:31_23:59:58:987 W: ");
}

TEST(LogPrefix, EachFieldHasItsLeadingZeros) {
    EXPECT_STREQ(logPrefix({1, 2, 3, 4, 5, 6, 7}, 'A').data(), "0001:02:03_04:05:06:007 A: ");
    EXPECT_STREQ(logPrefix({2024, 3, 7, 14, 5, 9, 42}, 'A').data(), "2024:03:07_14:05:09:042 A: ");
    EXPECT_STREQ(logPrefix({}, 'E').data(), "0000:00:00_00:00:00:000 E: ");
}

TEST(LogPrefix, HoldsTheLargestNumbers) {
    EXPECT_STREQ(logPrefix({65535, 65535, 65535, 65535, 65535, 65535, 65535}, 'A').data(),
                 "65535:65535:65535_65535:65535:65535:65535 A: ");
}

} // namespace
