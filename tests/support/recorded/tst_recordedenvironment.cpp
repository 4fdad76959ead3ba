#include "support/Environment.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

namespace {

// Windows keeps the current folder of each drive in a variable that Qt takes for one without a name.
TEST(RecordedEnvironment, AVariableWithoutANameIsNoneOfThoseThatAreMissing) {
    TestPc pc;
    pc.environment("", "C:=C:\\Games");
    EXPECT_EQ(environmentVariable("LuruludriTest"), "");
    EXPECT_EQ(environmentVariable(""), "");
}

} // namespace
