#include "support/Environment.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

namespace {

TEST(EnvironmentVariable, IsFoundIgnoringCaseAndByItsWholeName) {
    TestPc pc;
    pc.environment("LuruludriTest", "C:\\Some Folder\\");
    for (const char* const name : {"LuruludriTest", "luruludritest", "LURULUDRITEST"}) {
        EXPECT_EQ(environmentVariable(name), "C:\\Some Folder\\") << name;
    }
    for (const char* const name : {"LuruludriTes", "LuruludriTest2", ""}) {
        EXPECT_EQ(environmentVariable(name), "") << name;
    }
}

} // namespace
