#include "find/catalogue/CatalogueWriter.h"
#include "find/catalogue/FinderTypes.h"
#include "find/list/GameExecutables.h"
#include "find/list/SteamManifest.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace Find;

namespace {

TEST(GameExecutables, TheNearestOneOfTheGamesNameComesFirst) {
    EXPECT_EQ(likeliestExecutables({"launcher.exe", "bin\\wal.exe", "Der Wal.exe"}, "Der Wal"),
              (QStringList{"Der Wal.exe", "bin\\wal.exe", "launcher.exe"}));
    EXPECT_EQ(likeliestExecutables({"bin\\x.exe", "y.exe"}, "Wal"), (QStringList{"y.exe", "bin\\x.exe"}));
}

TEST(GameExecutables, WhatInstallsOrRemovesIsTakenOnlyWhenThereIsNothingElse) {
    EXPECT_EQ(likeliestExecutables({"unins000.exe", "x.exe", "vcredist_x64.exe"}, "Wal"), QStringList{"x.exe"});
    EXPECT_EQ(likeliestExecutables({"Setup.exe", "unins000.exe"}, "Wal"), QStringList{"Setup.exe"});
    EXPECT_EQ(likeliestExecutables({}, "Wal"), QStringList());
}

TEST(GameExecutables, AreThreeAtMost) {
    EXPECT_EQ(likeliestExecutables({"a.exe", "b.exe", "c.exe", "d.exe"}, "Wal"),
              (QStringList{"a.exe", "b.exe", "c.exe"}));
}

TEST(SteamManifest, TellsTheNameAndTheFolder) {
    const SteamManifest manifest =
        parseSteamManifest("\"AppState\"\n{\n\t\"appid\"\t\"1\"\n\t\"name\"\t\t\"Der \\\"Wal\\\" ä\"\n"
                           "\t\"installdir\"\t\"Der Wal\"\n}\n");
    EXPECT_EQ(manifest.name, "Der \"Wal\" ä");
    EXPECT_EQ(manifest.folderName, "Der Wal");
    EXPECT_EQ(parseSteamManifest("").folderName, "");
    EXPECT_EQ(parseSteamManifest("\"name\" \"unclosed").name, "");
}

/// Each kind of finder is written so that the reader reads the same.
TEST(CatalogueWriter, WritesWhatTheReaderReads) {
    for (const FinderType& type : finderTypes()) {
        FinderEntry finder;
        finder.type = &type;
        finder.subject = "D:\\Käfer \"王\"";
        finder.folderName = "Ordner";
        finder.executables = QStringList{"bin\\a.exe", "b.exe"};
        finder.matchMode = 1;
        FinderEntry inner;
        inner.type = findFinderType("universalApp");
        inner.subject = "x";
        finder.finders = {inner, inner};
        const Game game = {"Käfer \"1\"", {finder}};
        const QString text = catalogueText(game);
        CatalogueFaults faults;
        const auto read = parseCatalogue(("{\"games\": [" + text + "]}").toUtf8(), faults);
        ASSERT_TRUE(read) << text.toStdString() << faults.front().message.toStdString();
        EXPECT_EQ(catalogueText(read->front()), text);
        EXPECT_EQ(QJsonDocument::fromJson(text.toUtf8())["finders"], (QJsonArray{jsonOf(finder)}));
    }
}

TEST(CatalogueWriter, PutsTheTypeFirstAndLeavesOutAMatchModeThatSaysNothing) {
    FinderEntry finder;
    finder.type = findFinderType("uninstall");
    finder.subject = "Wal";
    finder.executables = QStringList{"a.exe", "b.exe"};
    EXPECT_EQ(
        catalogueText(Game{"Wal", {finder}}),
        R"({"name": "Wal", "finders": [{"type": "uninstall", "displayName": "Wal", "executables": ["a.exe", "b.exe"]}]})");
}

} // namespace
