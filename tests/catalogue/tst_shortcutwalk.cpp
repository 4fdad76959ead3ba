#include "catalogue/ShortcutWalk.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr quint64 limitMs = 30'000;

TEST(ShortcutWalkTest, ListsAFoldersOwnShortcutsBeforeThoseBelowIt) {
    TestPc pc;
    for (const char* path : {"a\\b.lnk", "a\\deep\\c.lnk", "a\\deeper\\x\\d.lnk", "b\\e.lnk", "z.lnk", "a.lnk"}) {
        pc.file(QString("C:\\Menu\\") + path);
    }
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\a.lnk", "C:\\Menu\\z.lnk", "C:\\Menu\\a\\b.lnk", "C:\\Menu\\a\\deep\\c.lnk",
                            "C:\\Menu\\a\\deeper\\x\\d.lnk", "C:\\Menu\\b\\e.lnk"));
}

TEST(ShortcutWalkTest, TakesTheFolderInEitherSpelling) {
    TestPc pc;
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("C:/Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
}

TEST(ShortcutWalkTest, TheExtensionIsInLowerCase) {
    TestPc pc;
    for (const char* name : {"a.lnk", "b.LNK", "c.Lnk", "d.lnkx", "e.lnk.txt", "f.url", "lnk", "g.old.lnk"}) {
        pc.file(QString("C:\\Menu\\") + name);
    }
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk", "C:\\Menu\\g.old.lnk"));
}

TEST(ShortcutWalkTest, TakesShortcutsWithoutLookingAtTheirTargets) {
    TestPc pc;
    pc.folder("C:\\Games");
    pc.shortcut("C:\\Menu\\folder.lnk", "C:\\Games");
    pc.shortcut("C:\\Menu\\gone.lnk", "C:\\Gone\\gone.exe");
    pc.file("C:\\Menu\\broken.lnk", "no shortcut at all");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\broken.lnk", "C:\\Menu\\folder.lnk", "C:\\Menu\\gone.lnk"));
}

TEST(ShortcutWalkTest, LeavesOutWhatIsHiddenOrTheSystems) {
    TestPc pc;
    for (const char* name : {"hidden.lnk", "seen.lnk", "system.lnk"}) {
        pc.file(QString("C:\\Menu\\") + name);
    }
    pc.hide("C:\\Menu\\hidden.lnk");
    pc.makeSystem("C:\\Menu\\system.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\seen.lnk"));
}

TEST(ShortcutWalkTest, WalksHiddenFoldersAllTheSame) {
    TestPc pc;
    pc.file("C:\\Menu\\hidden\\a.lnk");
    pc.file("C:\\Menu\\system\\b.lnk");
    pc.hide("C:\\Menu\\hidden");
    pc.hide("C:\\Menu\\system");
    pc.makeSystem("C:\\Menu\\system");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\hidden\\a.lnk", "C:\\Menu\\system\\b.lnk"));
}

TEST(ShortcutWalkTest, AFolderNamedLikeAShortcutCountsAsOne) {
    TestPc pc;
    pc.file("C:\\Menu\\folder.lnk\\inner.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\folder.lnk", "C:\\Menu\\folder.lnk\\inner.lnk"));
    pc.hide("C:\\Menu\\folder.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\folder.lnk\\inner.lnk"));
}

TEST(ShortcutWalkTest, NamesOutsideTheCodePageStayWhole) {
    TestPc pc;
    const QString folder = "C:\\Menu\\Spiele 競走";
    const QString name = QString::fromUtf8("\\Käferrennen \xF0\x9F\x8E\xAE.lnk");
    pc.file(folder + name);
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre(folder + name));
}

TEST(ShortcutWalkTest, APathLosesTheSpaceAtItsEnd) {
    TestPc pc;
    pc.file(u8"C:\\Menu\\a.lnk\u00A0");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
}

TEST(ShortcutWalkTest, WalksDeepFolders) {
    TestPc pc;
    QString folder = "C:\\Menu";
    for (int i = 0; i < 100; ++i) {
        folder += "\\f";
    }
    pc.file(folder + "\\x.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre(folder + "\\x.lnk"));
}

TEST(ShortcutWalkTest, FollowsLinksThatLeadElsewhere) {
    TestPc pc;
    pc.file("D:\\Elsewhere\\a.lnk");
    pc.link("C:\\Menu\\Linked", "D:\\Elsewhere");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\Linked\\a.lnk"));
}

TEST(ShortcutWalkTest, TurnsBackAtLinksToAFolderOnTheWay) {
    TestPc pc;
    pc.file("C:\\Menu\\A\\x.lnk");
    pc.link("C:\\Menu\\A\\self", "C:\\Menu\\A");
    pc.link("C:\\Menu\\A\\top", "C:\\Menu");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\A\\x.lnk"));

    pc.file("C:\\Menu\\B\\y.lnk");
    pc.link("C:\\Menu\\A\\b", "C:\\Menu\\B");
    pc.link("C:\\Menu\\B\\a", "C:\\Menu\\A");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\A\\x.lnk", "C:\\Menu\\A\\b\\y.lnk",
                                                                 "C:\\Menu\\B\\y.lnk", "C:\\Menu\\B\\a\\x.lnk"));
}

TEST(ShortcutWalkTest, AMissingFolderHasNone) {
    TestPc pc;
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("", limitMs), IsEmpty());
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\Missing", limitMs), IsEmpty()) << "and its parent is not searched";
    EXPECT_THAT(shortcutsBelow("Q:\\Menu", limitMs), IsEmpty());
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\a.lnk", limitMs), IsEmpty()) << "a file is no folder";
    pc.folder("C:\\Empty");
    EXPECT_THAT(shortcutsBelow("C:\\Empty", limitMs), IsEmpty());
}

TEST(ShortcutWalkTest, AWalkThatTakesTooLongHasNone) {
    TestPc pc;
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", 0), IsEmpty());
}

} // namespace
