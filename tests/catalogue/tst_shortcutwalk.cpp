#include "catalogue/ShortcutWalk.h"

#include "catalogue/TestWalk.h"
#include "common/PcTest.h"
#include "common/QtPrinters.h"

#include <gmock/gmock.h>

#include <map>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr quint64 limitMs = 30'000;

using ShortcutWalkTest = PcTest;

TEST_F(ShortcutWalkTest, ListsAFoldersOwnShortcutsBeforeThoseBelowIt) {
    for (const char* path : {"a\\b.lnk", "a\\deep\\c.lnk", "a\\deeper\\x\\d.lnk", "b\\e.lnk", "z.lnk", "a.lnk"}) {
        pc.file(QString("C:\\Menu\\") + path);
    }
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\a.lnk", "C:\\Menu\\z.lnk", "C:\\Menu\\a\\b.lnk", "C:\\Menu\\a\\deep\\c.lnk",
                            "C:\\Menu\\a\\deeper\\x\\d.lnk", "C:\\Menu\\b\\e.lnk"));
}

TEST_F(ShortcutWalkTest, TakesTheFolderInEitherSpelling) {
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("C:/Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
}

TEST_F(ShortcutWalkTest, TheExtensionIsInLowerCase) {
    for (const char* name : {"a.lnk", "b.LNK", "c.Lnk", "d.lnkx", "e.lnk.txt", "f.url", "lnk", "g.old.lnk"}) {
        pc.file(QString("C:\\Menu\\") + name);
    }
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk", "C:\\Menu\\g.old.lnk"));
}

TEST_F(ShortcutWalkTest, TakesShortcutsWithoutLookingAtTheirTargets) {
    pc.folder("C:\\Games");
    pc.shortcut("C:\\Menu\\folder.lnk", "C:\\Games");
    pc.shortcut("C:\\Menu\\gone.lnk", "C:\\Gone\\gone.exe");
    pc.file("C:\\Menu\\broken.lnk", "no shortcut at all");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\broken.lnk", "C:\\Menu\\folder.lnk", "C:\\Menu\\gone.lnk"));
}

TEST_F(ShortcutWalkTest, LeavesOutWhatIsHiddenOrTheSystems) {
    for (const char* name : {"hidden.lnk", "seen.lnk", "system.lnk"}) {
        pc.file(QString("C:\\Menu\\") + name);
    }
    pc.hide("C:\\Menu\\hidden.lnk");
    pc.makeSystem("C:\\Menu\\system.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\seen.lnk"));
}

TEST_F(ShortcutWalkTest, WalksHiddenFoldersAllTheSame) {
    pc.file("C:\\Menu\\hidden\\a.lnk");
    pc.file("C:\\Menu\\system\\b.lnk");
    pc.hide("C:\\Menu\\hidden");
    pc.hide("C:\\Menu\\system");
    pc.makeSystem("C:\\Menu\\system");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\hidden\\a.lnk", "C:\\Menu\\system\\b.lnk"));
}

TEST_F(ShortcutWalkTest, AFolderNamedLikeAShortcutCountsAsOne) {
    pc.file("C:\\Menu\\folder.lnk\\inner.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs),
                ElementsAre("C:\\Menu\\folder.lnk", "C:\\Menu\\folder.lnk\\inner.lnk"));
    pc.hide("C:\\Menu\\folder.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\folder.lnk\\inner.lnk"));
}

TEST_F(ShortcutWalkTest, NamesOutsideTheCodePageStayWhole) {
    const QString folder = "C:\\Menu\\Spiele 競走";
    const QString name = QString::fromUtf8("\\Käferrennen \xF0\x9F\x8E\xAE.lnk");
    pc.file(folder + name);
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre(folder + name));
}

TEST_F(ShortcutWalkTest, APathLosesTheSpaceAtItsEnd) {
    pc.file(u8"C:\\Menu\\a.lnk\u00A0");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\a.lnk"));
}

TEST_F(ShortcutWalkTest, WalksDeepFolders) {
    QString folder = "C:\\Menu";
    for (int i = 0; i < 100; ++i) {
        folder += "\\f";
    }
    pc.file(folder + "\\x.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre(folder + "\\x.lnk"));
}

TEST_F(ShortcutWalkTest, FollowsLinksThatLeadElsewhere) {
    pc.file("D:\\Elsewhere\\a.lnk");
    pc.link("C:\\Menu\\Linked", "D:\\Elsewhere");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs), ElementsAre("C:\\Menu\\Linked\\a.lnk"));
}

TEST_F(ShortcutWalkTest, TurnsBackAtLinksToAFolderOnTheWay) {
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

TEST_F(ShortcutWalkTest, AMissingFolderHasNone) {
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("", limitMs), IsEmpty());
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\Missing", limitMs), IsEmpty()) << "and its parent is not searched";
    EXPECT_THAT(shortcutsBelow("Q:\\Menu", limitMs), IsEmpty());
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\a.lnk", limitMs), IsEmpty()) << "a file is no folder";
    pc.folder("C:\\Empty");
    EXPECT_THAT(shortcutsBelow("C:\\Empty", limitMs), IsEmpty());
}

TEST_F(ShortcutWalkTest, AWalkThatTakesTooLongHasNone) {
    pc.file("C:\\Menu\\a.lnk");
    EXPECT_THAT(shortcutsBelow("C:\\Menu", 0), IsEmpty());
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs, clockShowing({100, 30'099})), ElementsAre("C:\\Menu\\a.lnk"));
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs, clockShowing({100, 30'100})), IsEmpty());
}

/// A walk on a PC where some of what is asked takes the whole time.
class SlowWalkTest : public ::testing::Test {
protected:
    SlowWalkTest() {
        pc.file("C:\\Menu\\a.lnk");
        pc.file("C:\\Menu\\Sub\\b.lnk");
        source.clockMs = [this] { return now; };
    }

    TestPc pc;
    quint64 now = 0;
    WalkSource source;
};

TEST_F(SlowWalkTest, ASlowEndOfTheLastListingCostsAllShortcuts) {
    quint64 timeOfTheEnd = limitMs - 1;
    source.nextEntry = [&](const Platform::ListingHandle& listing, Platform::FolderEntry& entry) {
        const bool isThere = Platform::nextEntry(listing, entry);
        now = isThere ? now : timeOfTheEnd;
        return isThere;
    };
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\Sub", limitMs, source), ElementsAre("C:\\Menu\\Sub\\b.lnk"));
    now = 0;
    timeOfTheEnd = limitMs;
    EXPECT_THAT(shortcutsBelow("C:\\Menu\\Sub", limitMs, source), IsEmpty());
}

TEST_F(SlowWalkTest, AListingThatFailsSlowlyCostsAllShortcuts) {
    quint64 timeOfTheFailure = limitMs - 1;
    source.firstEntry = [&](const QString& folder, Platform::FolderEntry& entry) {
        if (folder.endsWith("Sub")) {
            now = timeOfTheFailure;
            return Platform::ListingHandle();
        }
        return Platform::firstEntry(folder, entry);
    };
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs, source), ElementsAre("C:\\Menu\\a.lnk"));
    now = 0;
    timeOfTheFailure = limitMs;
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs, source), IsEmpty());
}

TEST_F(SlowWalkTest, WhenTheTimeIsOverNothingMoreIsAsked) {
    QStringList asked;
    source.firstEntry = [&](const QString& folder, Platform::FolderEntry& entry) {
        asked.append(folder);
        now = limitMs;
        return Platform::firstEntry(folder, entry);
    };
    source.nextEntry = [&](const Platform::ListingHandle&, Platform::FolderEntry&) {
        asked.append("next");
        return false;
    };
    EXPECT_THAT(shortcutsBelow("C:\\Menu", limitMs, source), IsEmpty());
    EXPECT_THAT(asked, ElementsAre("C:\\Menu"));
}

/// A walk where the folders named "link" are links, to whatever the test says.
class LinkWalkTest : public ::testing::Test {
protected:
    LinkWalkTest() {
        pc.file("C:\\Menu\\A\\link\\x.lnk");
        source.firstEntry = [](const QString& folder, Platform::FolderEntry& entry) {
            Platform::ListingHandle listing = Platform::firstEntry(folder, entry);
            markLink(entry);
            return listing;
        };
        source.nextEntry = [](const Platform::ListingHandle& listing, Platform::FolderEntry& entry) {
            const bool isThere = Platform::nextEntry(listing, entry);
            markLink(entry);
            return isThere;
        };
        source.fileIdentity = [this](const QString& path, Platform::FileIdentity& identity) {
            asked.append(path);
            const auto known = identities.find(path);
            identity = known == identities.end() ? Platform::FileIdentity{} : known->second;
            return known != identities.end();
        };
    }

    static void markLink(Platform::FolderEntry& entry) {
        entry.attributes |= entry.name == "link" ? Platform::attributeLink : 0U;
    }

    QStringList walk() { return shortcutsBelow("C:\\Menu", limitMs, source); }

    TestPc pc;
    WalkSource source;
    std::map<QString, Platform::FileIdentity> identities{{"C:\\Menu", {7, 1}}, {"C:\\Menu\\A", {7, 2}}};
    QStringList asked;
};

TEST_F(LinkWalkTest, ALinkElsewhereIsFollowed) {
    identities["C:\\Menu\\A\\link"] = {7, 3};
    EXPECT_THAT(walk(), ElementsAre("C:\\Menu\\A\\link\\x.lnk"));
    EXPECT_THAT(asked, ElementsAre("C:\\Menu\\A\\link", "C:\\Menu", "C:\\Menu\\A")) << "folders are not asked about";
}

TEST_F(LinkWalkTest, ALinkToAnyFolderOnTheWayIsNot) {
    for (const char* folder : {"C:\\Menu", "C:\\Menu\\A"}) {
        identities["C:\\Menu\\A\\link"] = identities[folder];
        EXPECT_THAT(walk(), IsEmpty()) << folder;
    }
}

TEST_F(LinkWalkTest, AFolderIsKnownByItsVolumeAndItsIndex) {
    identities["C:\\Menu\\A\\link"] = {8, 2};
    EXPECT_EQ(walk().size(), 1) << "another volume's";
}

TEST_F(LinkWalkTest, ALinkThatCanNotBeOpenedIsNotFollowed) {
    EXPECT_THAT(walk(), IsEmpty());
}

TEST_F(LinkWalkTest, AFolderOnTheWayThatCanNotBeOpenedIsNobodysTarget) {
    identities = {{"C:\\Menu\\A\\link", {0, 0}}};
    EXPECT_THAT(walk(), ElementsAre("C:\\Menu\\A\\link\\x.lnk"));
}

} // namespace
