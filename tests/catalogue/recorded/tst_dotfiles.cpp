#include "catalogue/StartMenuIndex.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::ElementsAre;

// Wine hides files whose names begin with a dot; Windows does not.
TEST(DotFilesTest, AShortcutThatIsAllExtensionHasAnEmptyName) {
    TestPc pc;
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.file("C:\\Menu\\.lnk");
    pc.file("C:\\Menu\\x.lnk");
    StartMenuIndex index;
    EXPECT_THAT(index.entries(), ElementsAre("C:\\Menu\\.lnk", "C:\\Menu\\x.lnk"));
    EXPECT_THAT(index.findByName("", 0), ElementsAre(&index.entries().first()));
    EXPECT_EQ(index.findByName("", 1).size(), 2U);
}

} // namespace
