#include "stores/EpicManifestIndex.h"

#include "common/EpicLauncher.h"
#include "common/PcTest.h"
#include "common/QtPrinters.h"
#include "recordings/Recording.h"
#include "support/Files.h"

#include <QFile>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

using EpicRecordedTest = PcTest;

TEST_F(EpicRecordedTest, WithoutTheCommonDataThePathBeginsAtTheRoot) {
    EpicManifestIndex index; // of a PC whose shell has no such folder
    EXPECT_TRUE(index.entries().empty());
    EXPECT_THAT(TestPc::messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: /Epic/EpicGamesLauncher/Data/Manifests", "A: No apps"));
}

/// Where the recording's folder has the folder of the manifests.
QString recordedFolder() {
    return qEnvironmentVariable(Recordings::environmentVariable) + "/drives/C/Epic/Manifests";
}

TEST_F(EpicRecordedTest, AManifestThatVanishesOnceItWasListedIsSkipped) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    ASSERT_THAT(Files::names(manifestFolder, ".item"), ElementsAre("1.item", "2.item"));
    ASSERT_TRUE(QFile::remove(recordedFolder() + "/1.item"));
    EpicManifestIndex index;
    EXPECT_EQ(index.entries().size(), 1U);
    EXPECT_THAT(TestPc::messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: " + manifestFolder, "W:   Skipped invalid manifest: 1.item",
                            "A:   App: Plum | Plum"));
}

// No permission binds root; a file of the kernel's can be opened by anybody, and read by nobody.
TEST_F(EpicRecordedTest, AManifestThatCanNotBeReadIsSkippedByName) {
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    ASSERT_TRUE(QFile::link("/proc/self/mem", recordedFolder() + "/1.item"));
    EpicManifestIndex index;
    EXPECT_EQ(index.entries().size(), 1U);
    EXPECT_THAT(TestPc::messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: " + manifestFolder, "W:   Skipped invalid manifest: 1.item",
                            "A:   App: Plum | Plum"));
}

} // namespace
