#include "catalogue/StartMenuIndex.h"

#include "catalogue/TestWalk.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using Platform::csidlCommonStartMenu;
using Platform::csidlStartMenu;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class StartMenuIndexTest : public ::testing::Test {
protected:
    StartMenuIndexTest() {
        pc.shellFolder(csidlStartMenu, "C:\\Menu");
        pc.shellFolder(csidlCommonStartMenu, "D:\\Menu");
    }

    QStringList find(const QString& name, int matchMode) {
        QStringList found;
        for (const QString& shortcut : index.findByName(name, matchMode)) {
            found.append(shortcut);
        }
        return found;
    }

    TestPc pc;
    StartMenuIndex index;
};

TEST_F(StartMenuIndexTest, ListsTheUsersShortcutsBeforeThoseOfAllUsers) {
    pc.file("D:\\Menu\\a.lnk");
    pc.file("D:\\Menu\\Programs\\b.lnk");
    pc.file("C:\\Menu\\y.lnk");
    pc.file("C:\\Menu\\Programs\\z.lnk");
    EXPECT_THAT(index.entries(), ElementsAre("C:\\Menu\\y.lnk", "C:\\Menu\\Programs\\z.lnk", "D:\\Menu\\a.lnk",
                                             "D:\\Menu\\Programs\\b.lnk"));
}

TEST_F(StartMenuIndexTest, AMissingStartMenuAddsNone) {
    pc.file("D:\\Menu\\a.lnk");
    EXPECT_THAT(index.entries(), ElementsAre("D:\\Menu\\a.lnk"));
}

TEST_F(StartMenuIndexTest, FindsShortcutsByNameIgnoringCase) {
    for (const char* path : {"C:\\Menu\\steam.lnk", "C:\\Menu\\Steam Support.lnk", "D:\\Menu\\x\\STEAM.lnk",
                             "D:\\Menu\\Steam.lnk\\other.lnk", "D:\\Menu\\Steam.old.lnk"}) {
        pc.file(path);
    }
    EXPECT_THAT(find("Steam", 0), ElementsAre("C:\\Menu\\steam.lnk", "D:\\Menu\\Steam.lnk", "D:\\Menu\\x\\STEAM.lnk"));
    EXPECT_THAT(find("Steam", 1),
                ElementsAre("C:\\Menu\\Steam Support.lnk", "C:\\Menu\\steam.lnk", "D:\\Menu\\Steam.lnk",
                            "D:\\Menu\\Steam.old.lnk", "D:\\Menu\\x\\STEAM.lnk"))
        << "by the file's name, not its folder's";
    EXPECT_THAT(find("steam.OLD", 0), ElementsAre("D:\\Menu\\Steam.old.lnk")) << "only the last extension goes";
    EXPECT_THAT(find("Steam.lnk", 0), IsEmpty());
}

TEST_F(StartMenuIndexTest, WritesNoLog) {
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_EQ(index.entries().size(), 1);
    EXPECT_THAT(QDir(pc.logFolder()).entryList(QDir::Files), IsEmpty());
}

TEST_F(StartMenuIndexTest, AStartMenuThatTakesThirtySecondsAddsNone) {
    pc.file("C:\\Menu\\a.lnk");
    StartMenuIndex inTime(clockShowing({0, 29'999}));
    EXPECT_THAT(inTime.entries(), ElementsAre("C:\\Menu\\a.lnk"));
    StartMenuIndex late(clockShowing({0, 30'000}));
    EXPECT_THAT(late.entries(), IsEmpty());
}

TEST_F(StartMenuIndexTest, EachStartMenuHasItsOwnThirtySeconds) {
    pc.file("C:\\Menu\\a.lnk");
    pc.file("D:\\Menu\\b.lnk");
    StartMenuIndex late(clockShowing({0, 30'000}));
    EXPECT_THAT(late.entries(), ElementsAre("D:\\Menu\\b.lnk")) << "the user's slow one does not cost all users'";
}

} // namespace
