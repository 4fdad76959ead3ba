#include "find/report/Installed.h"

#include "common/QtPrinters.h"
#include "find/catalogue/FinderTypes.h"
#include "find/report/SimilarNames.h"

#include <gtest/gtest.h>

namespace {

using namespace Find;

InstalledEntry entry(const char* finder, const QString& name, const QString& place) {
    return {findFinderType(QLatin1String(finder)), name, place};
}

FinderEntry finder(const char* type, const QString& subject, int matchMode = 0) {
    FinderEntry entry;
    entry.type = findFinderType(QLatin1String(type));
    entry.subject = subject;
    entry.matchMode = matchMode;
    return entry;
}

GameAnswer foundIn(const QString& folder) {
    return {"x", true, {"", "", {}, folder}};
}

/// The names of those that are not of the games.
QStringList unclaimedNames(const std::vector<InstalledEntry>& entries, const FoundGames& games) {
    QStringList names;
    for (const InstalledThing& thing : unclaimed(entries, entries, games)) {
        names.append(thing.name);
    }
    return names;
}

TEST(Installed, WhatLiesInTheFolderOfAGameThatWasFoundIsOfTheGame) {
    const FoundGames games({{"x", {finder("folder", "D:\\Spiele\\Käfer")}}}, {foundIn("D:/Spiele/Käfer/")});
    EXPECT_EQ(
        unclaimedNames({entry("uninstall", "a", "d:\\spiele\\\\KÄFER"),
                        entry("startMenu", "b", "D:\\Spiele\\Käfer\\bin\\k.exe"), entry("uninstall", "c", "D:\\Spiele"),
                        entry("uninstall", "d", "D:\\Spiele\\Käfer 2"), entry("uninstall", "e", "")},
                       games),
        (QStringList{"c", "d", "e"}));
}

TEST(Installed, WhatAFinderOfTheGameSearchesForIsOfTheGame) {
    const FoundGames games({{"x", {finder("steam", "42"), finder("uninstall", "Sturm", 1)}}}, {foundIn("E:\\x")});
    EXPECT_EQ(unclaimedNames({entry("steam", "42", "D:\\common"), entry("steam", "4", "D:\\common"),
                              entry("oculusStore", "42", ""), entry("uninstall", "STURM", ""),
                              entry("uninstall", "Der sturm 2", ""), entry("startMenu", "Der Sturm 2", "")},
                             games),
              (QStringList{"4", "42", "Der Sturm 2"}));
}

TEST(Installed, AFinderWithinAMultiFinderCountsAsWell) {
    FinderEntry multi;
    multi.type = findFinderType(QLatin1String("multi"));
    multi.finders = {finder("epicStore", "Wal")};
    const FoundGames games({{"x", {multi}}}, {foundIn("E:\\x")});
    EXPECT_EQ(unclaimedNames({entry("epicStore", "Wal", "D:\\Wal")}, games), QStringList());
}

TEST(Installed, AGameThatWasNotFoundHasNothing) {
    const FoundGames games({{"x", {finder("uninstall", "Wal")}}}, {GameAnswer{"x", false, {}}});
    EXPECT_EQ(unclaimedNames({entry("uninstall", "Wal", ""), entry("uninstall", "b", "D:\\b")}, games),
              (QStringList{"b", "Wal"}));
}

TEST(Installed, EntriesOfTheSameThingAreOne) {
    const std::vector<InstalledEntry> entries = {
        entry("uninstall", "Wal", ""),        entry("startMenu", "wal", "D:\\Wal\\wal.exe"),
        entry("epicStore", "Wal", "D:\\Wal"), entry("gameForWindow", "WAL", "d:/wal"),
        entry("uninstall", "Los", ""),        entry("startMenu", "Los", "")};
    QStringList told;
    for (const InstalledThing& thing : unclaimed(entries, entries, FoundGames({}, {}))) {
        told.append(QString("%1|%2|%3").arg(thing.name, thing.lists.join(','), thing.place));
    }
    EXPECT_EQ(told, (QStringList{"wal|Start menu|D:\\Wal\\wal.exe",
                                 "Wal|Epic launcher,Games Explorer,Uninstall registry|D:\\Wal",
                                 "Los|Uninstall registry,Start menu|"}));
}

TEST(Installed, BearTheNamesThatPeopleKnow) {
    const std::vector<InstalledEntry> entries = {entry("steam", "7", "D:\\common"), entry("steam", "8", "D:\\common"),
                                                 entry("steam", "9", "D:\\common")};
    const std::vector<InstalledEntry> shown = {entry("steam", "Wal", "D:\\common\\Wal"),
                                               entry("steam", "Hai", "D:\\common\\Hai"),
                                               entry("steam", "Aal", "D:\\common\\Aal")};
    const FoundGames games({{"x", {finder("steam", "8")}}, {"y", {}}}, {foundIn("E:\\x"), foundIn("D:/common/Aal")});
    const std::vector<InstalledThing> things = unclaimed(entries, shown, games);
    ASSERT_EQ(things.size(), 1U) << "one is looked for by its number, and one lies in a game's folder";
    EXPECT_EQ(things[0].name, "Wal");
    EXPECT_EQ(things[0].place, "D:\\common\\Wal");
}

class SimilarNamesTest : public ::testing::Test {
protected:
    QStringList mentioning(const QStringList& words) const {
        QStringList names;
        for (const InstalledEntry* const one : SimilarNames(entries).mentioning(words)) {
            names.append(one->name);
        }
        return names;
    }

    const std::vector<InstalledEntry> entries = {
        entry("uninstall", "Käferrennen", ""), entry("uninstall", "競走クラブ", ""),
        entry("uninstall", "Rennen der KÄFER", ""), entry("uninstall", "Wa", "")};
};

TEST_F(SimilarNamesTest, MentionAWordWhereverItStandsLetterCaseIgnored) {
    EXPECT_EQ(mentioning({"käfer"}), (QStringList{"Käferrennen", "Rennen der KÄFER"}));
    EXPECT_EQ(mentioning({"errennen"}), QStringList{"Käferrennen"});
    EXPECT_EQ(mentioning({"Rennende"}), QStringList());
    EXPECT_EQ(mentioning({"Schiff"}), QStringList());
    EXPECT_EQ(mentioning({}), QStringList());
}

TEST_F(SimilarNamesTest, AreEachToldOnceInTheListsOrder) {
    EXPECT_EQ(mentioning({"Rennen", "Käfer"}), (QStringList{"Käferrennen", "Rennen der KÄFER"}));
}

TEST_F(SimilarNamesTest, AreFoundByWordsOfLessThanThreeLettersToo) {
    EXPECT_EQ(mentioning({"競"}), QStringList{"競走クラブ"});
    EXPECT_EQ(mentioning({"wa"}), QStringList{"Wa"});
}

} // namespace
