#include "host/Answers.h"
#include "host/OneLine.h"
#include "host/Report.h"
#include "host/Table.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using namespace Host;

std::string table(const std::vector<QStringList>& rows) {
    return renderTable(rows).toStdString();
}

GameAnswer beetle() {
    GameAnswer game;
    game.name = "Käferrennen";
    game.found = true;
    game.location.installFolder = "D:\\Käfer";
    game.location.executablePath = "D:\\Käfer\\k.exe";
    game.location.launchCommand = "steam://launch/42/VR";
    game.location.executablePaths = QStringList{game.location.executablePath, "D:\\b.exe"};
    return game;
}

Answers someAnswers() {
    Answers answers;
    answers.games = {beetle(), {"Wal", false, {}}};
    answers.runtimes = {
        {"Varjo", "varjoRuntimeFolder", false, {"C:\\Varjo"}},
        {"OpenXR", "openXrActiveRuntime", false, {}},
        {"Oculus libraries", "oculusLibraryFolders", true, {"C:/a", "D:/b"}},
    };
    return answers;
}

TEST(Table, ColumnsAreAsWideAsTheirWidestCell) {
    EXPECT_EQ(table({{"a", "bb", "c"}, {"aaa", "b", "ccc"}}), "a    bb  c\naaa  b   ccc\n");
}

TEST(Table, WidthsCountCharactersNotBytes) {
    // One unit each: a letter of two bytes, a letter with a combining mark, a character outside the basic plane.
    EXPECT_EQ(table({{"ä", "x"}, {"a\u0308", "x"}, {"\U0001D11E", "x"}, {"ab", "x"}}),
              "ä   x\na\u0308   x\n\U0001D11E   x\nab  x\n");
}

TEST(Table, LinesEndWithoutBlanks) {
    EXPECT_EQ(table({{"a", QString(), "c"}, {"a", "b", QString()}, {"a"}, {QString(), "b"}, {}}),
              "a     c\na  b\na\n   b\n\n");
}

TEST(Table, CellsStayOnTheirLine) {
    EXPECT_EQ(table({{"a\nb\u001B[1m", "c"}}), "a b [1m  c\n");
}

TEST(OneLine, OnlyWhatLeavesTheLineIsReplaced) {
    EXPECT_EQ(oneLine("Käfer 王 \U0001D11E\u200D"), "Käfer 王 \U0001D11E\u200D");
    EXPECT_EQ(oneLine("\r\n\t\u0085\u2028\u2029\u007F."), "       .");
    EXPECT_EQ(oneLine(QString(3, QChar(0))), "   ");
}

TEST(RenderTables, GamesFirstThenRuntimes) {
    EXPECT_EQ(renderTables(someAnswers()).toStdString(), "Game         Found  Folder    Started by\n"
                                                         "Käferrennen  yes    D:\\Käfer  steam://launch/42/VR\n"
                                                         "Wal          no\n"
                                                         "\n"
                                                         "Runtime           Where\n"
                                                         "Varjo             C:\\Varjo\n"
                                                         "OpenXR            not found\n"
                                                         "Oculus libraries  C:/a\n"
                                                         "                  D:/b\n");
}

TEST(RenderTables, WithoutGamesThereIsNoTableOfGames) {
    Answers answers = someAnswers();
    answers.games.clear();
    EXPECT_TRUE(renderTables(answers).startsWith("Runtime"));
}

TEST(RenderJson, SaysAllThatIsKnown) {
    const QJsonDocument document = QJsonDocument::fromJson(renderJson(someAnswers()).toUtf8());
    const QJsonDocument expected = QJsonDocument::fromJson(R"({
        "version": 1,
        "games": [
            {"name": "Käferrennen", "found": true, "installFolder": "D:\\Käfer",
             "launchCommand": "steam://launch/42/VR", "executablePath": "D:\\Käfer\\k.exe",
             "executablePaths": ["D:\\Käfer\\k.exe", "D:\\b.exe"]},
            {"name": "Wal", "found": false, "installFolder": "", "launchCommand": "", "executablePath": "",
             "executablePaths": []}],
        "runtimes": {"varjoRuntimeFolder": "C:\\Varjo", "openXrActiveRuntime": "",
                     "oculusLibraryFolders": ["C:/a", "D:/b"]}})");
    ASSERT_FALSE(expected.isNull());
    EXPECT_EQ(document.toJson().toStdString(), expected.toJson().toStdString());
}

TEST(RenderJson, AListWithoutValuesStaysAList) {
    Answers answers;
    answers.runtimes = {{"L", "list", true, {}}};
    const QJsonObject root = QJsonDocument::fromJson(renderJson(answers).toUtf8()).object();
    EXPECT_TRUE(root["runtimes"]["list"].isArray());
    EXPECT_TRUE(root["games"].isArray());
}

TEST(Answers, AllGamesAreFoundWhenNoneIsMissing) {
    Answers answers;
    EXPECT_TRUE(answers.allGamesFound());
    answers.games = {beetle()};
    EXPECT_TRUE(answers.allGamesFound());
    EXPECT_FALSE(someAnswers().allGamesFound());
}

} // namespace
