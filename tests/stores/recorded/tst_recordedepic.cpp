#include "stores/EpicManifestIndex.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::ElementsAre;

TEST(EpicRecordedTest, WithoutTheCommonDataThePathBeginsAtTheRoot) {
    const TestPc pc; // whose shell has no such folder
    EpicManifestIndex index;
    EXPECT_TRUE(index.entries().empty());
    EXPECT_THAT(TestPc::messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: /Epic/EpicGamesLauncher/Data/Manifests", "A: No apps"));
}

} // namespace
