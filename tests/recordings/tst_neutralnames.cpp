#include "recordings/NeutralNames.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Recordings::NeutralNames;

const NeutralNames names({{"Jördis", "user"}, {"KAEFER-PC", "pc"}}, "Users");

TEST(NeutralNames, ReplaceWholeWords) {
    EXPECT_EQ(names.text("C:\\Users\\Jördis\\Games"), "C:\\Users\\user\\Games");
    EXPECT_EQ(names.text("jördis"), "user");
    EXPECT_EQ(names.text("\\\\kaefer-pc\\JÖRDIS.old\\"), "\\\\pc\\user.old\\");
    EXPECT_EQ(names.text("D:/save_Jördis-2/\"Jördis\""), "D:/save_user-2/\"user\"");
    EXPECT_EQ(names.text("(Jördis, Jördis)"), "(user, user)");
}

TEST(NeutralNames, LeavePartsOfWords) {
    for (const char* const text :
         {"Jördisburg", "Björdis", "Jördis2", "2Jördis", "Jördisö", "KAEFER-PCs", "Jördi", "Jördis\u0301"}) {
        EXPECT_EQ(names.text(text), text);
    }
}

TEST(NeutralNames, KnowCharactersOfTwoUnits) {
    EXPECT_EQ(names.text(QString::fromUtf8("Jördis😀")), QString::fromUtf8("user😀"));
    EXPECT_EQ(names.text(QString::fromUtf8("Jördis𠮷")), QString::fromUtf8("Jördis𠮷")) << "a letter";
    const QString half = QString("Jördis") + QChar(0xD83D);
    EXPECT_EQ(names.text(half), QString("user") + QChar(0xD83D));
}

TEST(NeutralNames, TheLongerNameGoesFirst) {
    const NeutralNames both({{"anna", "user"}, {"anna.KAEFER", "user-2"}, {"user", "pc"}}, "Users");
    EXPECT_EQ(both.text("C:\\Users\\anna.kaefer\\anna"), "C:\\Users\\user-2\\user");
    EXPECT_EQ(both.text("anna user"), "user pc") << "what was put in is not replaced again";
}

TEST(NeutralNames, TheShortFormOfANameIsTheName) {
    const NeutralNames longName({{"Christopher", "user"}}, "Users");
    EXPECT_EQ(longName.text("C:\\Users\\CHRIST~1\\Temp"), "C:\\Users\\user\\Temp");
    EXPECT_EQ(longName.text("C:\\Users\\christ~3"), "C:\\Users\\user");
    EXPECT_EQ(longName.text("CHRIST~12 CHRIST~"), "CHRIST~12 CHRIST~");
    EXPECT_EQ(Recordings::shortFormOf("Anna Lena"), "AnnaLe~");
    EXPECT_EQ(Recordings::shortFormOf("a.b"), "ab~");
    EXPECT_EQ(Recordings::shortFormOf("Annalena"), "") << "eight letters are short enough";
}

TEST(NeutralNames, ANameThatIsAWordOfPlacesIsReplacedBesideTheProfileOnly) {
    const NeutralNames games({{"Games", "user", false}}, "Users");
    EXPECT_EQ(games.text("C:\\Users\\Games\\Games\\x"), "C:\\Users\\user\\Games\\x");
    EXPECT_EQ(games.text("\"C:/users/games\""), "\"C:/users/user\"");
    EXPECT_EQ(games.text("C:\\\\Users\\\\Games\\\\Games"), "C:\\\\Users\\\\user\\\\Games") << "as in JSON";
    for (const char* const text :
         {"C:\\Games", "Users\\Games", "C:\\My Users\\Games\\x", "C:\\UsersGames", "Games", "C:\\Users\\Games2"}) {
        EXPECT_EQ(games.text(text), text);
    }
}

TEST(NeutralNames, AreKnownAsTheyAreEscapedInJsonAndUrls) {
    EXPECT_EQ(names.text("\"C:\\\\Users\\\\J\\u00F6rdis\\\\x\""), "\"C:\\\\Users\\\\user\\\\x\"");
    EXPECT_EQ(names.text("file:///J%C3%B6rdis/x"), "file:///user/x");
}

TEST(NeutralNames, WithoutNamesNothingChanges) {
    const NeutralNames none;
    EXPECT_EQ(none.text("C:\\Users\\Jördis"), "C:\\Users\\Jördis");
}

} // namespace
