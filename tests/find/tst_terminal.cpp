#include "find/terminal/Terminal.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QProcessEnvironment>

namespace {

using namespace Find;

constexpr TerminalFacts wideTerminal = {true, 132, true};

Terminal describe(const TerminalFacts& facts, const char* variable = nullptr, const char* value = "") {
    QProcessEnvironment environment;
    if (variable != nullptr) {
        environment.insert(variable, value);
    }
    return describeTerminal(facts, environment);
}

TEST(Terminal, HasItsOwnWidthAndColours) {
    const Terminal terminal = describe(wideTerminal);
    EXPECT_TRUE(terminal.isTerminal);
    EXPECT_EQ(terminal.width, 132);
    EXPECT_TRUE(terminal.colours);
    EXPECT_TRUE(terminal.rewritesLines);
}

TEST(Terminal, WhatIsNoneHasNoLimitAndNoColoursWhateverTheEnvironmentSays) {
    const Terminal file = describe({false, 132, true}, "COLUMNS", "40");
    EXPECT_FALSE(file.isTerminal);
    EXPECT_EQ(file.width, 0);
    EXPECT_FALSE(file.colours);
    EXPECT_FALSE(file.rewritesLines);
}

TEST(Terminal, ColumnsSetsTheWidth) {
    EXPECT_EQ(describe(wideTerminal, "COLUMNS", "40").width, 40);
    for (const char* nonsense : {"", "0", "-5", "vierzig", "99999999999"}) {
        EXPECT_EQ(describe(wideTerminal, "COLUMNS", nonsense).width, 132) << nonsense;
    }
}

TEST(Terminal, AnUnknownWidthIsEightyAndATinyOneTwenty) {
    EXPECT_EQ(describe({true, 0, true}).width, 80);
    EXPECT_EQ(describe({true, 3, true}).width, leastWidth);
    EXPECT_EQ(describe(wideTerminal, "COLUMNS", "1").width, leastWidth);
}

TEST(Terminal, NoColorWithAnyValueSwitchesColoursOff) {
    EXPECT_FALSE(describe(wideTerminal, "NO_COLOR", "1").colours);
    EXPECT_FALSE(describe(wideTerminal, "NO_COLOR", "0").colours);
    EXPECT_TRUE(describe(wideTerminal, "NO_COLOR", "").colours);
    EXPECT_TRUE(describe(wideTerminal, "NO_COLOR", "1").rewritesLines);
}

TEST(Terminal, ADumbOneHasNoColoursAndRewritesNothing) {
    const Terminal dumb = describe(wideTerminal, "TERM", "dumb");
    EXPECT_TRUE(dumb.isTerminal);
    EXPECT_EQ(dumb.width, 132);
    EXPECT_FALSE(dumb.colours);
    EXPECT_FALSE(dumb.rewritesLines);
    EXPECT_TRUE(describe(wideTerminal, "TERM", "xterm").colours);
}

TEST(Terminal, OneThatDoesNotObeyEscapesHasNoColours) {
    EXPECT_FALSE(describe({true, 132, false}).colours);
    EXPECT_TRUE(describe({true, 132, false}).rewritesLines);
}

} // namespace
