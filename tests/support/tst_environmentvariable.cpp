#include "support/Environment.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

namespace {

TEST(EnvironmentVariable, IsFoundIgnoringCase) {
    TestPc pc;
    pc.environment("LuruludriTest", "C:\\Some Folder\\");
    EXPECT_EQ(environmentVariable("LuruludriTest"), "C:\\Some Folder\\");
    EXPECT_EQ(environmentVariable("luruludritest"), "C:\\Some Folder\\");
    EXPECT_EQ(environmentVariable("LURULUDRITEST"), "C:\\Some Folder\\");
}

TEST(EnvironmentVariable, IsEmptyWhenThereIsNone) {
    TestPc pc;
    pc.environment("LuruludriTest", "C:\\Some Folder\\");
    EXPECT_EQ(environmentVariable("LuruludriTes"), "");
    EXPECT_EQ(environmentVariable("LuruludriTest2"), "");
    EXPECT_EQ(environmentVariable(""), "");
}

} // namespace
