#include "support/NameTable.h"

#include "common/QtPrinters.h"

#include <QRandomGenerator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
    for (int i = 0; i < 20'000; ++i) {
        const QString left = text(6);
        const QString right = text(4);
        ASSERT_EQ(Text::foldCase(left) == Text::foldCase(right), left.compare(right, Qt::CaseInsensitive) == 0)
            << left.toStdString() << " | " << right.toStdString();
    }
}

struct Entry {
    QString name;
};

class NameTableTest : public ::testing::Test {
protected:
    NameTableTest() {
        for (const Entry& entry : entries) {
            table.add(entry.name, entry);
        }
    }

    const std::vector<Entry> entries{{"Space Racer"}, {"Space Racer 2"}, {"SPACE RACER"}, {"Käfer"}, {""}};
    NameTable<Entry> table;
};

TEST_F(NameTableTest, FindsEqualNamesInTheirOrder) {
    EXPECT_THAT(table.find("space racer", 0), ElementsAre(&entries[0], &entries[2]));
    EXPECT_THAT(table.find("KÄFER", 0), ElementsAre(&entries[3]));
    EXPECT_THAT(table.find("space", 0), IsEmpty());
    EXPECT_THAT(table.find("", 0), ElementsAre(&entries[4]));
}

TEST_F(NameTableTest, FindsContainingNamesInTheirOrder) {
    EXPECT_THAT(table.find("space racer", MatchMode::contains), ElementsAre(&entries[0], &entries[1], &entries[2]));
    EXPECT_THAT(table.find("ÄF", MatchMode::contains), ElementsAre(&entries[3]));
    EXPECT_THAT(table.find("x", MatchMode::contains), IsEmpty());
    EXPECT_EQ(table.find("", MatchMode::contains).size(), entries.size());
}

TEST_F(NameTableTest, AnyOtherModeMeansEqual) {
    EXPECT_THAT(table.find("space racer", 2), ElementsAre(&entries[0], &entries[2]));
    EXPECT_THAT(table.find("space racer", -1), ElementsAre(&entries[0], &entries[2]));
}

TEST(IdTableTest, ComparesExactly) {
    const std::vector<Entry> entries{{"440"}, {"0440"}, {"440"}, {"abc"}};
    IdTable<Entry> table;
    for (const Entry& entry : entries) {
        table.add(entry.name, entry);
    }
    EXPECT_THAT(table.find("440"), ElementsAre(&entries[0], &entries[2]));
    EXPECT_THAT(table.find("ABC"), IsEmpty());
}

} // namespace
