#include "find/answers/Answers.h"
#include "find/answers/AnswersText.h"
#include "find/terminal/OneLine.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

using namespace Find;

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

TEST(OneLine, OnlyWhatLeavesTheLineIsReplaced) {
    EXPECT_EQ(oneLine("Käfer 王 \U0001D11E\u200D"), "Käfer 王 \U0001D11E\u200D");
    EXPECT_EQ(oneLine("\r\n\t\u0085\u2028\u2029\u007F."), "       .");
    EXPECT_EQ(oneLine(QString(3, QChar(0))), "   ");
    EXPECT_EQ(oneLine("a\u202Eb\u202C\u2066c\u2069"), "a b  c ") << "which would turn the line";
}

const std::string runtimesAndCount = "\n"
                                     "Runtime           Where\n"
                                     "Varjo             C:\\Varjo\n"
                                     "OpenXR            not found\n"
                                     "Oculus libraries  C:/a\n"
                                     "                  D:/b\n"
                                     "\n"
                                     "1 of 2 found\n";

TEST(RenderTables, GamesFirstThenRuntimes) {
    EXPECT_EQ(renderTables(someAnswers()).toStdString(), "Game         Found  Folder    Started by\n"
                                                         "Käferrennen  yes    D:\\Käfer  steam://launch/42/VR\n"
                                                         "Wal          no\n" +
                                                             runtimesAndCount);
}

TEST(RenderTables, WhatIsFoundAndWhatIsNotDifferInColourToo) {
    Terminal terminal;
    terminal.colours = true;
    const QString text = renderTables(someAnswers(), terminal);
    EXPECT_TRUE(text.contains("\nKäferrennen  \x1B[32myes\x1B[0m")) << text.toStdString();
    EXPECT_TRUE(text.contains("\nWal          \x1B[33mno\x1B[0m\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("\nOpenXR            \x1B[33mnot found\x1B[0m\n")) << text.toStdString();
    EXPECT_TRUE(text.startsWith("\x1B[1mGame\x1B[0m ")) << text.toStdString();
    EXPECT_TRUE(text.contains("\n\x1B[1mRuntime\x1B[0m ")) << text.toStdString();
    EXPECT_EQ(QString(text).remove(QRegularExpression("\x1B\\[[0-9]+m")), renderTables(someAnswers()));
}

TEST(RenderTables, OnANarrowTerminalTheGamesStandAboveTheirPlaces) {
    Terminal terminal;
    terminal.width = 39;
    EXPECT_EQ(renderTables(someAnswers(), terminal).toStdString(), "Game         Found\n"
                                                                   "    Folder\n"
                                                                   "    Started by\n"
                                                                   "Käferrennen  yes\n"
                                                                   "    D:\\Käfer\n"
                                                                   "    steam://launch/42/VR\n"
                                                                   "Wal          no\n" +
                                                                       runtimesAndCount);
}

TEST(RenderTables, WithoutGamesThereIsNoTableOfGames) {
    Answers answers = someAnswers();
    answers.games.clear();
    EXPECT_TRUE(renderTables(answers).startsWith("Runtime"));
}

TEST(RenderJson, SaysAllThatIsKnown) {
    const QJsonDocument document(jsonOf(someAnswers()));
    const QJsonDocument expected = QJsonDocument::fromJson(R"({
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
    const QJsonObject root = jsonOf(answers);
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
