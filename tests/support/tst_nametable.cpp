#include "support/NameTable.h"

#include "common/QtPrinters.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

template <class Table>
void addTo(Table& table, const QString& text) {
    table.row(text, text).enter();
}

class NameTableTest : public ::testing::Test {
protected:
    NameTableTest() {
        for (const char* name : {"Space Racer", "Space Racer 2", "SPACE RACER", "Käfer", ""}) {
            addTo(table, name);
        }
    }

    NameTable<QString> table;
};

TEST_F(NameTableTest, FindsEqualNamesInTheirOrder) {
    EXPECT_THAT(table.find("space racer", MatchMode::equals), ElementsAre("Space Racer", "SPACE RACER"));
    EXPECT_THAT(table.find("KÄFER", MatchMode::equals), ElementsAre("Käfer"));
    EXPECT_THAT(table.find("space", MatchMode::equals), IsEmpty());
    EXPECT_THAT(table.find("", MatchMode::equals), ElementsAre(""));
}

TEST_F(NameTableTest, FindsContainingNamesInTheirOrder) {
    EXPECT_THAT(table.find("space racer", MatchMode::contains),
                ElementsAre("Space Racer", "Space Racer 2", "SPACE RACER"));
    EXPECT_THAT(table.find("ÄF", MatchMode::contains), ElementsAre("Käfer"));
    EXPECT_THAT(table.find("x", MatchMode::contains), IsEmpty());
    EXPECT_EQ(table.find("", MatchMode::contains).size(), 5U);
}

TEST_F(NameTableTest, AnyOtherModeMeansEqual) {
    EXPECT_EQ(MatchMode::contains, 1);
    for (const int matchMode : {0, 2, -1}) {
        EXPECT_THAT(table.find("space racer", matchMode), ElementsAre("Space Racer", "SPACE RACER")) << matchMode;
    }
}

TEST_F(NameTableTest, ARowThatIsNotEnteredIsNotFound) {
    { const auto row = table.row("Late", "Late"); }
    EXPECT_THAT(table.find("Late", MatchMode::equals), IsEmpty());
    EXPECT_THAT(table.find("Late", MatchMode::contains), IsEmpty());
}

TEST_F(NameTableTest, APartThatGoesOverTwoNamesIsInNeither) {
    EXPECT_THAT(table.find("2SPACE", MatchMode::contains), IsEmpty()) << "the end of one and the beginning of the next";
    addTo(table, "x2space");
    EXPECT_THAT(table.find("2SPACE", MatchMode::contains), ElementsAre("x2space"));
}

TEST(ManyNamesTest, AreFoundInTheirOrderByAllTheirParts) {
    NameTable<int> table;
    QStringList names;
    for (int i = 0; i < 1000; ++i) {
        names.append(i % 7 == 0 ? "Twin" : QString("Name %1 of many").arg(i % 400));
        table.row(names.last(), i).enter();
    }
    for (const char* const name : {"twin", "TWI", "n", "name 1", "name 399 of many", "of many", "name 400", "yn", ""}) {
        std::vector<int> equal;
        std::vector<int> containing;
        for (int i = 0; i < names.size(); ++i) {
            if (names[i].compare(name, Qt::CaseInsensitive) == 0) {
                equal.push_back(i);
            }
            if (names[i].contains(name, Qt::CaseInsensitive)) {
                containing.push_back(i);
            }
        }
        EXPECT_EQ(table.find(name, MatchMode::equals), equal) << name;
        EXPECT_EQ(table.find(name, MatchMode::contains), containing) << name;
    }
}

TEST(IdTableTest, ComparesExactlyAndKeepsTheOrder) {
    IdTable<int> table;
    int number = 0;
    for (const char* id : {"440", "0440", "440", "abc", "440"}) {
        table.row(id, ++number).enter();
    }
    EXPECT_THAT(table.find("440"), ElementsAre(1, 3, 5));
    EXPECT_THAT(table.find("0440"), ElementsAre(2));
    EXPECT_THAT(table.find("ABC"), IsEmpty());
    EXPECT_THAT(table.find(""), IsEmpty());
}

TEST(IdTableTest, TellsIdentifiersOfOneHashApart) {
    // Each letter counts 31 times the next one.
    ASSERT_EQ(qHash(QString("Aa")), qHash(QString("BB"))) << "else two other ones must be found";
    IdTable<int> table;
    table.row("Aa", 1).enter();
    table.row("BB", 2).enter();
    EXPECT_THAT(table.find("Aa"), ElementsAre(1));
    EXPECT_THAT(table.find("BB"), ElementsAre(2));
}

} // namespace
