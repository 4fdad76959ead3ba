#include "find/terminal/Table.h"
#include "find/terminal/TextWidth.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace {

using namespace Find;

TableRow rowOf(const QStringList& texts) {
    return TableRow(texts.begin(), texts.end());
}

Table tableOf(const std::vector<QStringList>& texts, std::size_t leading = 1) {
    Table table;
    table.leading = leading;
    std::transform(texts.begin(), texts.end(), std::back_inserter(table.rows), rowOf);
    return table;
}

Terminal terminalOf(int width) {
    Terminal terminal;
    terminal.isTerminal = true;
    terminal.width = width;
    return terminal;
}

std::string lines(const std::vector<QStringList>& rows) {
    return renderTable(tableOf(rows)).toStdString();
}

const QString longFolder = "C:\\Program Files (x86)\\Steam\\steamapps\\common\\Fjordflug im Winter";
const QString longCommand = "C:\\Games\\競走クラブ\\bin\\win64\\release\\KeisoClub-Win64-Shipping.exe";

Table games() {
    return tableOf({{"Game", "Found", "Folder", "Started by"},
                    {"競走クラブ", "yes", longFolder, longCommand},
                    {"Wörter", "yes", "C:\\Games\\W", "steam://launch/42"},
                    {"Wal", "no", "", ""}},
                   2);
}

int widestLine(const QString& text) {
    int widest = 0;
    const QStringList all = text.split('\n');
    for (const QString& line : all) {
        widest = std::max(widest, displayWidth(line));
    }
    return widest;
}

/// All characters but blanks, sorted: what a text holds, wherever it stands.
QString charactersOf(const QString& text) {
    QString characters = QString(text).remove(QRegularExpression("\\s"));
    std::sort(characters.begin(), characters.end());
    return characters;
}

TEST(Table, ColumnsAreAsWideAsTheirWidestCell) {
    EXPECT_EQ(lines({{"a", "bb", "c"}, {"aaa", "b", "ccc"}}), "a    bb  c\naaa  b   ccc\n");
}

TEST(Table, WidthsCountColumnsOfTheTerminal) {
    // One column each: a letter of two bytes, a letter with a combining mark, a character outside the basic plane.
    EXPECT_EQ(lines({{"ä", "x"}, {"a\u0308", "x"}, {"\U0001D11E", "x"}, {"ab", "x"}}),
              "ä   x\na\u0308   x\n\U0001D11E   x\nab  x\n");
    EXPECT_EQ(lines({{"競走クラブ", "x"}, {"\U00020B9F", "x"}, {"0123456789", "x"}}),
              "競走クラブ  x\n\U00020B9F          x\n0123456789  x\n");
}

TEST(Table, LinesEndWithoutBlanks) {
    EXPECT_EQ(lines({{"a", QString(), "c"}, {"a", "b", QString()}, {"a"}, {QString(), "b"}, {}}),
              "a     c\na  b\na\n   b\n\n");
}

TEST(Table, CellsStayOnTheirLine) {
    EXPECT_EQ(lines({{"a\nb\u001B[1m", "c"}}), "a b [1m  c\n");
}

TEST(Table, WithoutALimitLinesAreAsLongAsTheyAre) {
    const std::string blanks(57, ' ');
    EXPECT_EQ(renderTable(games()).toStdString(), "Game        Found  Folder" + blanks +
                                                      "    Started by\n" //
                                                      "競走クラブ  yes    " +
                                                      longFolder.toStdString() + "  " + longCommand.toStdString() +
                                                      "\n"
                                                      "Wörter      yes    C:\\Games\\W" +
                                                      blanks +
                                                      "steam://launch/42\n"
                                                      "Wal         no\n");
}

TEST(Table, ATableThatFitsIsTheSameOnATerminal) {
    const int width = widestLine(renderTable(games()));
    EXPECT_EQ(renderTable(games(), terminalOf(width)), renderTable(games()));
    EXPECT_NE(renderTable(games(), terminalOf(width - 1)), renderTable(games()));
}

TEST(Table, At120ColumnsLongCellsStandBelowEachOther) {
    EXPECT_EQ(renderTable(games(), terminalOf(120)).toStdString(), "Game        Found  Folder\n"
                                                                   "                   Started by\n"
                                                                   "競走クラブ  yes    " +
                                                                       longFolder.toStdString() +
                                                                       "\n"
                                                                       "                   " +
                                                                       longCommand.toStdString() +
                                                                       "\n"
                                                                       "Wörter      yes    C:\\Games\\W\n"
                                                                       "                   steam://launch/42\n"
                                                                       "Wal         no\n");
}

TEST(Table, At80ColumnsLongPathsStillStayInOnePiece) {
    EXPECT_EQ(renderTable(games(), terminalOf(80)).toStdString(), "Game        Found\n"
                                                                  "    Folder\n"
                                                                  "    Started by\n"
                                                                  "競走クラブ  yes\n"
                                                                  "    " +
                                                                      longFolder.toStdString() + "\n    " +
                                                                      longCommand.toStdString() +
                                                                      "\n"
                                                                      "Wörter      yes\n"
                                                                      "    C:\\Games\\W\n"
                                                                      "    steam://launch/42\n"
                                                                      "Wal         no\n");
}

TEST(Table, At40ColumnsPathsAreBrokenBehindSeparators) {
    EXPECT_EQ(renderTable(games(), terminalOf(40)).toStdString(), "Game        Found\n"
                                                                  "    Folder\n"
                                                                  "    Started by\n"
                                                                  "競走クラブ  yes\n"
                                                                  "    C:\\Program Files (x86)\\Steam\\\n"
                                                                  "      steamapps\\common\\\n"
                                                                  "      Fjordflug im Winter\n"
                                                                  "    C:\\Games\\競走クラブ\\bin\\win64\\\n"
                                                                  "      release\\\n"
                                                                  "      KeisoClub-Win64-Shipping.exe\n"
                                                                  "Wörter      yes\n"
                                                                  "    C:\\Games\\W\n"
                                                                  "    steam://launch/42\n"
                                                                  "Wal         no\n");
}

TEST(Table, OneLongCellDoesNotMoveTheOthers) {
    const QString address = "com.epicgames.launcher://apps/" + QString("5d1c0b7e").repeated(14);
    Table table = games();
    table.rows[1] = rowOf({"Nebelpflug", "yes", "D:\\Epic Games", address});
    EXPECT_EQ(renderTable(table, terminalOf(80)).toStdString(),
              "Game        Found  Folder         Started by\n"
              "Nebelpflug  yes    D:\\Epic Games  com.epicgames.launcher://apps/\n"
              "                                    " +
                  address.mid(30, 44).toStdString() + "\n" + std::string(36, ' ') + address.mid(74, 44).toStdString() +
                  "\n" + std::string(36, ' ') + address.mid(118).toStdString() +
                  "\n"
                  "Wörter      yes    C:\\Games\\W     steam://launch/42\n"
                  "Wal         no\n");
}

TEST(Table, NoLineIsWiderThanAnyTerminalAndNothingIsLost) {
    Table table = games();
    table.rows.push_back(rowOf({QString("競").repeated(200), "no"}));
    table.rows.push_back(
        rowOf({QString("Ein Spiel mit langem Namen ").repeated(5).trimmed(), "yes", "D:\\X", "D:\\X\\x.exe"}));
    for (int width = leastWidth; width < 220; ++width) {
        const QString text = renderTable(table, terminalOf(width));
        EXPECT_LE(widestLine(text), width);
        EXPECT_EQ(charactersOf(text), charactersOf(renderTable(table))) << text.toStdString();
    }
}

TEST(Table, ARowThatGoesOnWithTheOneBeforeHasNoLineOfItsOwnAbove) {
    EXPECT_EQ(
        renderTable(tableOf({{"Oculus libraries", "C:\\Games\\Software"}, {"", "D:\\Oculus\\Software"}, {"", ""}}),
                    terminalOf(30))
            .toStdString(),
        "Oculus libraries\n    C:\\Games\\Software\n    D:\\Oculus\\Software\n\n");
}

TEST(Table, ColoursDoNotCountAsColumns) {
    Terminal terminal = terminalOf(12);
    terminal.colours = true;
    Table table;
    table.rows = {{{"Name", Tone::Heading}, {"Found", Tone::Heading}},
                  {{"a", Tone::Plain}, {"yes", Tone::Good}},
                  {{"b", Tone::Plain}, {"no", Tone::Bad}},
                  {{"", Tone::Plain}, {"", Tone::Bad}}};
    EXPECT_EQ(renderTable(table, terminal).toStdString(), "\x1B[1mName\x1B[0m  \x1B[1mFound\x1B[0m\n"
                                                          "a     \x1B[32myes\x1B[0m\n"
                                                          "b     \x1B[33mno\x1B[0m\n"
                                                          "\n");
}

TEST(Table, EveryPieceOfABrokenCellIsColoured) {
    Terminal terminal = terminalOf(20);
    terminal.colours = true;
    Table table;
    table.rows = {{TableCell("Eine lange Überschrift", Tone::Heading)}};
    EXPECT_EQ(renderTable(table, terminal).toStdString(), "\x1B[1mEine lange \x1B[0m\n\x1B[1m  Überschrift\x1B[0m\n");
}

TEST(Table, AHugeCellIsRenderedAtOnce) {
    const QString huge = QString("\\Ordner").repeated(100000);
    const QString text = renderTable(tableOf({{"a", huge}}), terminalOf(80));
    EXPECT_TRUE(charactersOf(text) == charactersOf("a" + huge));
    EXPECT_LE(widestLine(text), 80);
}

TEST(Table, WithoutRowsThereIsNothing) {
    EXPECT_EQ(renderTable(Table()), "");
    EXPECT_EQ(renderTable(Table(), terminalOf(80)), "");
}

} // namespace
