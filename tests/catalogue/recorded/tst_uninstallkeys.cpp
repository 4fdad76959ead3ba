#include "catalogue/UninstallIndex.h"

#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// Windows' own functions make no such key; others do.
TEST(RecordedUninstallTest, AKeyWhoseNameIsTooLongIsPassedOver) {
    TestPc pc;
    for (const int length : {255, 256, 300}) {
        addProgram(pc, {QString(length, 'a'), QString::number(length), "C:\\X", {}});
    }
    addProgram(pc, {"b", "last", "C:\\X", {}});
    UninstallIndex index;
    QStringList names;
    for (const UninstallEntry& entry : index.entries()) {
        names.append(entry.displayName);
    }
    EXPECT_THAT(names, ElementsAre("255", "last"));
}

} // namespace
