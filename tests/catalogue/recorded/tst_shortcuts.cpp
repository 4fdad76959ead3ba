#include "catalogue/StartMenuFinder.h"
#include "catalogue/StartMenuIndex.h"
#include "core/GameLocation.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

// What Windows has and Wine does not.

TEST(RecordedShortcutsTest, AShortcutThatIsAllExtensionHasAnEmptyName) {
    TestPc pc;
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.file("C:\\Menu\\.lnk");
    pc.file("C:\\Menu\\x.lnk");
    StartMenuIndex index;
    EXPECT_THAT(index.entries(), ElementsAre("C:\\Menu\\.lnk", "C:\\Menu\\x.lnk"));
    EXPECT_THAT(index.findByName("", 0), ElementsAre("C:\\Menu\\.lnk"));
    EXPECT_EQ(index.findByName("", 1).size(), 2U);
}

TEST(RecordedShortcutsTest, AShortcutMayLeadIntoTheNetwork) {
    TestPc pc;
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.shortcut("C:\\Menu\\X.lnk", "\\\\server\\share\\Games\\x.exe");
    StartMenuIndex index;
    Logger logger = Logger::create("Test");
    GameLocation location;
    EXPECT_TRUE(Finders::StartMenuFinder(&logger, &index, "X", {"x.exe"}, 0).find(location));
    EXPECT_EQ(location.launchCommand, "//server/share/Games/x.exe");
    EXPECT_EQ(location.installFolder, "//server/share/Games");
}

} // namespace
