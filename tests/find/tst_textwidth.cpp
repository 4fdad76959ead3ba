#include "find/terminal/TextWidth.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using namespace Find;

TEST(DisplayWidth, LettersTakeOneColumn) {
    EXPECT_EQ(displayWidth(""), 0);
    EXPECT_EQ(displayWidth("Käfer …"), 7);
    EXPECT_EQ(displayWidth("\u00AD\U0001D11E\uFF61"), 3) << "a soft hyphen, a clef, a halfwidth form";
}

TEST(DisplayWidth, EastAsianWideCharactersTakeTwo) {
    EXPECT_EQ(displayWidth("競走クラブ"), 10);
    EXPECT_EQ(displayWidth("한글"), 4);
    EXPECT_EQ(displayWidth("Ａ！"), 4) << "fullwidth forms";
    EXPECT_EQ(displayWidth("\U00020000\U0001F600"), 4);
}

TEST(DisplayWidth, TheEdgesOfWideRangesAreRight) {
    EXPECT_EQ(displayWidth("\u10FF"), 1);
    EXPECT_EQ(displayWidth("\u1100"), 2);
    EXPECT_EQ(displayWidth("\u115F"), 2);
    EXPECT_EQ(displayWidth("\uABFF"), 1);
    EXPECT_EQ(displayWidth("\uAC00"), 2);
    EXPECT_EQ(displayWidth("\uFF60"), 2);
    EXPECT_EQ(displayWidth("\U0003FFFD"), 2);
    EXPECT_EQ(displayWidth("\U00040000"), 1);
}

TEST(DisplayWidth, MarksAndInvisibleCharactersTakeNone) {
    EXPECT_EQ(displayWidth("a\u0308\u20DD"), 1);
    EXPECT_EQ(displayWidth("\u200B\u200D\uFE0F\uFEFF\u302A"), 0);
    EXPECT_EQ(displayWidth("\u1112\u1161\u11AB"), 2) << "one Korean syllable";
}

TEST(DisplayWidth, HalvesOfCharactersTakeOne) {
    EXPECT_EQ(displayWidth(QString(QChar(0xD83D)) + 'a'), 2);
    EXPECT_EQ(displayWidth(QString(QChar(0xDE00))), 1);
}

TEST(FittingLength, CountsUnitsThatFit) {
    EXPECT_EQ(fittingLength("abcdef", 0, 4), 4);
    EXPECT_EQ(fittingLength("abcdef", 4, 4), 2);
    EXPECT_EQ(fittingLength("競走ク", 0, 5), 2);
    EXPECT_EQ(fittingLength("abc", 3, 4), 0);
}

TEST(FittingLength, CharactersStayInOnePieceAndMarksWithThem) {
    EXPECT_EQ(fittingLength("\U0001F600\U0001F600", 0, 3), 2);
    EXPECT_EQ(fittingLength("a\u0308b\u0308c", 0, 2), 4);
    EXPECT_EQ(fittingLength("競走", 0, 1), 1) << "one is always taken";
    EXPECT_EQ(fittingLength("a\u0308b", 0, 0), 2);
}

TEST(WrapText, WhatFitsIsOneLine) {
    EXPECT_EQ(wrapText("D:\\Spiele", 9, 7), QStringList{"D:\\Spiele"});
    EXPECT_EQ(wrapText("", 9, 7), QStringList());
}

TEST(WrapText, PathsAreBrokenBehindTheirSeparators) {
    EXPECT_EQ(wrapText("D:\\Spiele\\Käfer rennen\\k.exe", 14, 14),
              (QStringList{"D:\\Spiele\\", "Käfer rennen\\", "k.exe"}));
    EXPECT_EQ(wrapText("D:/Spiele/Käfer", 11, 11), (QStringList{"D:/Spiele/", "Käfer"}));
}

TEST(WrapText, NamesAreBrokenBehindBlanksAndAddressesBehindMarks) {
    EXPECT_EQ(wrapText("Das kleine Spiel", 12, 12), (QStringList{"Das kleine ", "Spiel"}));
    EXPECT_EQ(wrapText("?action=launch&silent=true", 18, 18), (QStringList{"?action=launch&", "silent=true"}));
}

TEST(WrapText, ASeparatorNearTheBeginDoesNotCount) {
    EXPECT_EQ(wrapText("D:\\Käferrennenspielplatz", 20, 20), (QStringList{"D:\\Käferrennenspielp", "latz"}));
}

TEST(WrapText, LinesBehindTheFirstHaveTheirOwnWidth) {
    EXPECT_EQ(wrapText("abcdefghij", 5, 3), (QStringList{"abcde", "fgh", "ij"}));
}

TEST(WrapText, CharactersStayInOnePieceHoweverNarrowTheLine) {
    EXPECT_EQ(wrapText("競a\u0308\U0001F600", 1, 1), (QStringList{"競", "a\u0308", "\U0001F600"}));
}

} // namespace
