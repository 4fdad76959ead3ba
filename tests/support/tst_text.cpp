#include "support/Text.h"

#include "common/QtPrinters.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

namespace {

TEST(Unquote, TakesAPathOutOfItsQuotes) {
    EXPECT_EQ(Text::unquote("\"C:\\Program Files\\X\\x.exe\""), "C:\\Program Files\\X\\x.exe");
}

TEST(Unquote, TakesTheLastCharacterWhateverItIs) {
    EXPECT_EQ(Text::unquote("\"abc"), "ab");
    EXPECT_EQ(Text::unquote("\"C:\\x.exe\" -silent"), "C:\\x.exe\" -silen");
}

TEST(Unquote, LeavesTextThatDoesNotBeginWithAQuoteAlone) {
    EXPECT_EQ(Text::unquote("abc\""), "abc\"");
    EXPECT_EQ(Text::unquote(" \"abc\""), " \"abc\"");
    EXPECT_EQ(Text::unquote("'abc'"), "'abc'");
    EXPECT_EQ(Text::unquote(""), "");
}

TEST(Unquote, MakesNothingOfALoneQuote) {
    EXPECT_EQ(Text::unquote("\""), "");
    EXPECT_EQ(Text::unquote("\"\""), "");
}

TEST(FoldCase, FoldsCharacterByCharacter) {
    EXPECT_EQ(Text::foldCase("Käfer ÄÖ Straße"), "käfer äö straße");
    EXPECT_EQ(Text::foldCase("ΣΟΦΟΣ"), Text::foldCase("σοφος"));
    EXPECT_EQ(Text::foldCase(QString::fromUtf8("\xF0\x90\x90\x80")), QString::fromUtf8("\xF0\x90\x90\xA8"));
    EXPECT_EQ(Text::foldCase(""), "");
}

TEST(FoldCase, AgreesWithQtOnEveryCharacter) {
    for (uint character = 0; character < 0x20000; ++character) {
        const uint lower = QChar::toLower(character);
        const uint upper = QChar::toUpper(character);
        const QString text = QString::fromUcs4(&character, 1);
        for (const uint other : {lower, upper}) {
            const QString otherText = QString::fromUcs4(&other, 1);
            ASSERT_EQ(Text::foldCase(text) == Text::foldCase(otherText),
                      text.compare(otherText, Qt::CaseInsensitive) == 0)
                << std::hex << character << ' ' << other;
        }
    }
}

TEST(FoldCase, AgreesWithQtOnTextsOfAllKinds) {
    QRandomGenerator random(7);
    const QString letters = QString::fromUtf8("aAsSßẞiIıİkKK σςΣ") + QChar(0xD801) + QChar(0xDC00) + QChar(0xDC28);
    const auto text = [&](int most) {
        QString result;
        for (int length = random.bounded(most); length > 0; --length) {
            result += letters.at(random.bounded(letters.size()));
        }
        return result;
    };
    const auto beginsWithinAPair = [](const QString& searched) {
        return searched.startsWith(QChar(0xDC00)) || searched.startsWith(QChar(0xDC28));
    };
    for (int i = 0; i < 20'000; ++i) {
        const QString left = text(6);
        const QString right = text(4);
        const QString leftFolded = Text::foldCase(left);
        const QString rightFolded = Text::foldCase(right);
        ASSERT_EQ(leftFolded == rightFolded, left.compare(right, Qt::CaseInsensitive) == 0)
            << left.toStdString() << " | " << right.toStdString();
        ASSERT_TRUE(beginsWithinAPair(right) ||
                    leftFolded.contains(rightFolded) == left.contains(right, Qt::CaseInsensitive))
            << left.toStdString() << " | " << right.toStdString();
    }
}

TEST(FoldCase, HalfACharacterIsLookedForInTheFoldedPair) {
    const QString capital = QString::fromUtf8("\xF0\x90\x90\x80"); // D801 DC00; the small letter is D801 DC28
    EXPECT_TRUE(Text::foldCase(capital).contains(Text::foldCase(QChar(0xD801))));
    EXPECT_TRUE(Text::foldCase(capital).contains(Text::foldCase(QChar(0xDC28))));
    EXPECT_FALSE(Text::foldCase(capital).contains(Text::foldCase(QChar(0xDC00))));
}

TEST(IndexOf, AgreesWithThePlainSearchEverywhere) {
    QRandomGenerator random(1);
    const auto anyText = [&random](int length) {
        std::u16string text;
        for (int i = 0; i < length; ++i) {
            text += static_cast<char16_t>(u'a' + random.bounded(2));
        }
        return text;
    };
    for (int round = 0; round < 3000; ++round) {
        const std::u16string text = anyText(random.bounded(150));
        const std::u16string sought = anyText(1 + random.bounded(12));
        for (std::size_t from = 0; from <= text.size() + 1; ++from) {
            ASSERT_EQ(Text::indexOf(text, sought, from), text.find(sought, from))
                << QString::fromStdU16String(text).toStdString() << ", "
                << QString::fromStdU16String(sought).toStdString() << ", " << from;
        }
    }
}

} // namespace
