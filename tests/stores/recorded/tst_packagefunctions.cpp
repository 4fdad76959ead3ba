#include "stores/PackageQueries.h"

#include "common/TestPc.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/SystemFunctions.h"

#include <gtest/gtest.h>

namespace {

/// All tests of this program run on systems without the functions, so whoever asks first finds none.
TEST(PackageFunctionsTest, WhatIsMissingIsNotLookedUpAgain) {
    {
        const TestPc without;
        EXPECT_EQ(systemPackageFunctions().getPackagesByPackageFamily, nullptr);
    }
    RecordingFolder with;
    with.describe(R"({"packages": []})");
    with.choose();
    EXPECT_NE(Platform::kernelFunction("GetPackagesByPackageFamily"), nullptr);
    const PackageFunctions functions = systemPackageFunctions();
    EXPECT_EQ(functions.getPackagesByPackageFamily, nullptr);
    EXPECT_EQ(functions.openPackageInfoByFullName, nullptr);
    EXPECT_EQ(functions.closePackageInfo, nullptr);
    EXPECT_EQ(functions.getPackageApplicationIds, nullptr);
}

} // namespace
