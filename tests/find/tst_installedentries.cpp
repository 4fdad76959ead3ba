#include "find/catalogue/InstalledEntries.h"

#include "common/QtPrinters.h"
#include "find/catalogue/FinderTypes.h"

#include <gtest/gtest.h>

using namespace Find;

namespace {

QStringList textsOf(const std::vector<InstalledEntry>& entries) {
    QStringList texts;
    for (const InstalledEntry& one : entries) {
        texts.append(QString("%1|%2|%3").arg(one.type->title, one.name, one.place));
    }
    return texts;
}

TEST(InstalledEntries, AreTheEntriesOfAllListsAndTheAppPackages) {
    const std::vector<Trace::Event> events = {
        Trace::Entry{"in no list", ""},
        Trace::IndexBegin{"Uninstall"},
        Trace::Entry{"Käfer", "D:\\Käfer"},
        Trace::IndexEnd{"Uninstall", 1},
        Trace::Entry{"behind", ""},
        Trace::IndexBegin{"StartMenu"},
        Trace::Entry{"Wal", "C:\\Menu\\Wal.lnk"},
        Trace::Entry{"Los", "C:\\Menu\\Los.lnk"},
        Trace::IndexEnd{"StartMenu", 2},
        Trace::Shortcut{"C:\\Menu\\Wal.lnk", "C:\\Wal\\wal.exe"},
        Trace::Shortcut{"C:\\Menu\\Los.lnk", ""},
        Trace::Package{"Maker.Game_x", true, "Maker.Game_1_x64__x", {}},
        Trace::Package{"Maker.Game_x", true, "Maker.Game_1_x64__x", {}},
        Trace::Package{"Maker.None_x", true, "", {}},
    };
    EXPECT_EQ(textsOf(installedEntries(events)),
              (QStringList{"Uninstall registry|Käfer|D:\\Käfer", "Start menu|Wal|C:\\Wal\\wal.exe",
                           "Start menu|Los|C:\\Menu\\Los.lnk", "App packages|Maker.Game_x|Maker.Game_1_x64__x"}));
}

TEST(InstalledEntries, AListKeepsTheEntriesBehindAListThatIsMadeWithinIt) {
    const std::vector<Trace::Event> events = {
        Trace::IndexBegin{"SteamLibraries"}, Trace::IndexBegin{"StartMenu"},  Trace::Entry{"Steam", "C:\\Steam"},
        Trace::IndexEnd{"StartMenu", 1},     Trace::Entry{"7", "D:\\common"}, Trace::IndexEnd{"SteamLibraries", 1},
        Trace::Entry{"in no list", ""},
    };
    EXPECT_EQ(textsOf(installedEntries(events)), (QStringList{"Start menu|Steam|C:\\Steam", "Steam|7|D:\\common"}));
}

TEST(InstalledEntries, OfAListAreDistinctByNameOrByPlace) {
    using Trace::Entry;
    const std::vector<InstalledEntry> entries = installedEntries(
        {Trace::IndexBegin{"SteamLibraries"}, Trace::FinderBegin{1}, Entry{"1", "D:/a"}, Entry{"2", "D:/a"},
         Entry{"1", "D:/b"}, Trace::IndexEnd{"SteamLibraries", 3}, Trace::IndexBegin{"EpicManifests"},
         Entry{"epic", "D:/a"}, Trace::IndexEnd{"EpicManifests", 1}});
    const auto distinct = [&entries](const char* type, QString InstalledEntry::*what) {
        return textsOf(distinctEntries(entries, *findFinderType(type), what));
    };
    EXPECT_EQ(distinct("steam", &InstalledEntry::name), (QStringList{"Steam|1|D:/a", "Steam|2|D:/a"}));
    EXPECT_EQ(distinct("steam", &InstalledEntry::place), (QStringList{"Steam|1|D:/a", "Steam|1|D:/b"}));
    EXPECT_EQ(distinct("epicStore", &InstalledEntry::name), QStringList{"Epic launcher|epic|D:/a"});
    EXPECT_EQ(distinct("startMenu", &InstalledEntry::name), QStringList());
}

} // namespace
