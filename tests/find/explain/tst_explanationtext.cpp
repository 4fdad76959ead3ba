#include "find/explain/Explanation.h"
#include "find/explain/ExplanationText.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace Find;

namespace {

Explanation someExplanation() {
    using Kind = ExplanationLine::Kind;
    return {"Wal: not found",
            false,
            {{Kind::Finder, "1. folder: folder \"D:\\Spiele\\Der große Wal\""},
             {Kind::Seen, "registry key HKEY_LOCAL_MACHINE\\SOFTWARE\\Wal"},
             {Kind::Seen, "    (default) = 12345678901234567890"},
             {Kind::Reason, "* The folder is missing."},
             {Kind::Outcome, "=> found"}},
            {"Uninstall: \"Walfang\", D:\\Walfang"}};
}

TEST(ExplanationText, IsOneLineForEachWhereThereIsNoTerminal) {
    EXPECT_EQ(renderExplanation(someExplanation()), "Wal: not found\n"
                                                    "\n"
                                                    "1. folder: folder \"D:\\Spiele\\Der große Wal\"\n"
                                                    "   registry key HKEY_LOCAL_MACHINE\\SOFTWARE\\Wal\n"
                                                    "       (default) = 12345678901234567890\n"
                                                    "   * The folder is missing.\n"
                                                    "   => found\n"
                                                    "\n"
                                                    "Similar names in the lists:\n"
                                                    "   Uninstall: \"Walfang\", D:\\Walfang\n");
}

TEST(ExplanationText, OnATerminalLongLinesGoOnFurtherIn) {
    Terminal terminal;
    terminal.width = 30;
    EXPECT_EQ(renderExplanation(someExplanation(), terminal), "Wal: not found\n"
                                                              "\n"
                                                              "1. folder: folder \"D:\\Spiele\\\n"
                                                              "  Der große Wal\"\n"
                                                              "   registry key \n"
                                                              "     HKEY_LOCAL_MACHINE\\\n"
                                                              "     SOFTWARE\\Wal\n"
                                                              "       (default) = \n"
                                                              "         12345678901234567890\n"
                                                              "   * The folder is missing.\n"
                                                              "   => found\n"
                                                              "\n"
                                                              "Similar names in the lists:\n"
                                                              "   Uninstall: \"Walfang\", D:\\\n"
                                                              "     Walfang\n");
}

TEST(ExplanationText, WhatMattersIsColoured) {
    Terminal terminal;
    terminal.colours = true;
    const QString text = renderExplanation(someExplanation(), terminal);
    EXPECT_TRUE(text.startsWith("\x1B[33mWal: not found\x1B[0m\n\n\x1B[1m1. folder: ")) << text.toStdString();
    EXPECT_TRUE(text.contains("\n\x1B[33m   * The folder is missing.\x1B[0m\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("\n\x1B[32m   => found\x1B[0m\n")) << text.toStdString();
    EXPECT_EQ(QString(text).remove(QRegularExpression("\x1B\\[[0-9]+m")), renderExplanation(someExplanation()));
    Explanation good = someExplanation();
    good.found = true;
    EXPECT_TRUE(renderExplanation(good, terminal).startsWith("\x1B[32mWal"));
}

} // namespace
