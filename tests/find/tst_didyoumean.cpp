#include "find/terminal/DidYouMean.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Find::didYouMean;
using Find::wordsNear;

TEST(DidYouMean, AWordWithAFewWrongLettersIsKnown) {
    const QStringList known = {"find", "record", "runtimes", "explain"};
    EXPECT_EQ(wordsNear("recrod", known), QStringList{"record"}) << "swapped";
    EXPECT_EQ(wordsNear("fnid", known), QStringList{"find"}) << "swapped, which is one fault and not two";
    EXPECT_EQ(wordsNear("recod", known), QStringList{"record"}) << "one too few";
    EXPECT_EQ(wordsNear("recoord", known), QStringList{"record"}) << "one too many";
    EXPECT_EQ(wordsNear("redord", known), QStringList{"record"}) << "another one";
    EXPECT_EQ(wordsNear("RECORT", known), QStringList{"record"}) << "letter case is ignored";
    EXPECT_EQ(wordsNear("reckort", known), QStringList{"record"}) << "two wrong ones of seven";
    EXPECT_EQ(wordsNear("rechort", QStringList{"record"}), QStringList{"record"});
    EXPECT_EQ(wordsNear("racxxd", known), QStringList()) << "three of six";
}

TEST(DidYouMean, APartOfANameIsEnough) {
    EXPECT_EQ(wordsNear("Käfer", {"Wal", "Käferrennen"}), QStringList{"Käferrennen"});
    EXPECT_EQ(wordsNear("Käferrennen Deluxe", {"Wal", "Käferrennen"}), QStringList{"Käferrennen"});
    EXPECT_EQ(wordsNear("rr", {"Käferrennen"}), QStringList()) << "two letters are in too many names";
}

TEST(DidYouMean, ThreeWordsAtMostTheLikeliestFirst) {
    EXPECT_EQ(wordsNear("wale", {"walefang", "wal", "wale1", "wale"}), (QStringList{"wale", "wal", "wale1"}));
}

TEST(DidYouMean, NothingIsMeantWhereNothingIsNear) {
    EXPECT_EQ(wordsNear("", {"a", "b"}), QStringList());
    EXPECT_EQ(wordsNear("x", {"a", "y"}), QStringList());
    EXPECT_EQ(didYouMean("zwölf", {"Wal"}), "");
    EXPECT_EQ(didYouMean("Wal", {"Wale", "Wal"}), "") << "nobody means what was written";
    EXPECT_EQ(didYouMean("WAL", {"Wal"}), "; did you mean \"Wal\"?");
}

TEST(DidYouMean, TheQuestionNamesThem) {
    EXPECT_EQ(didYouMean("step", {"steam", "stem"}), "; did you mean \"stem\"?");
    EXPECT_EQ(didYouMean("stea", {"steam", "stem"}), "; did you mean \"steam\" or \"stem\"?");
}

} // namespace
