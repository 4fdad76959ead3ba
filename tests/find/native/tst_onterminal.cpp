#include "../FindProgram.h"
#include "PseudoTerminal.h"

#include "common/QtPrinters.h"
#include "find/terminal/TextWidth.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr const char* twoGames = R"({"games": [
    {"name": "Käferrennen", "finders": [{"type": "universalApp", "packageFamily": "installed"}]},
    {"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "x"}]}]})";

class OnTerminal : public ::testing::Test {
protected:
    void SetUp() override {
        if (!PseudoTerminal::areThere()) {
            GTEST_SKIP() << "no terminals here";
        }
    }
};

QByteArray manyGames(int count) {
    QByteArray games;
    for (int i = 1; i <= count; ++i) {
        games += R"({"name": "Spiel )" + QByteArray::number(i) + R"(", "finders": [{"type": "universalApp",
                 "packageFamily": "installed"}]})" +
                 (i < count ? "," : "");
    }
    return R"({"games": [)" + games + "]}";
}

/// What the program shows on a terminal of that width.
QString outputOn(FindProgram& program, unsigned short columns) {
    PseudoTerminal terminal(columns);
    program.redirect(terminal.name(), QString());
    const FindRun run = program.run({program.file("games.json", twoGames)});
    program.redirect(QString(), QString());
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.output + run.errors, "");
    return terminal.text();
}

QString withoutColours(QString text) {
    return text.remove(QRegularExpression("\x1B\\[[0-9]+m"));
}

TEST_F(OnTerminal, TheTableKeepsToTheWidth) {
    FindProgram program;
    const QString text = withoutColours(outputOn(program, 39));
    EXPECT_TRUE(text.startsWith("Game         Found\n"
                                "    Folder\n"
                                "    Started by\n"
                                "Käferrennen  yes\n"
                                "    D:\\Spiele\\Käfer\n"
                                "    steam://launch/42/VR\n"
                                "Wal          no\n"
                                "\n"
                                "Runtime "))
        << text.toStdString();
    EXPECT_TRUE(withoutColours(outputOn(program, 40)).startsWith("Game         Found  Folder\n"));
    program.setVariable("COLUMNS", "39");
    EXPECT_EQ(withoutColours(outputOn(program, 200)), text);
}

TEST_F(OnTerminal, OnAWideOneNothingDiffersButColours) {
    FindProgram program;
    const QString plain = program.run({program.file("games.json", twoGames)}).output;
    const QString coloured = outputOn(program, 200);
    EXPECT_EQ(withoutColours(coloured), plain);
    EXPECT_TRUE(coloured.contains("\x1B[32myes\x1B[0m")) << coloured.toStdString();

    program.setVariable("NO_COLOR", "1");
    EXPECT_EQ(outputOn(program, 200), plain);
    program.setVariable("NO_COLOR", "");
    EXPECT_EQ(outputOn(program, 200), coloured);
    program.setVariable("TERM", "dumb");
    EXPECT_EQ(outputOn(program, 200), plain);
}

TEST_F(OnTerminal, AQuickCatalogueShowsNoProgress) {
    FindProgram program;
    PseudoTerminal terminal(80);
    program.redirect(QString(), terminal.name());
    const FindRun run = program.run({program.file("games.json", twoGames)});
    EXPECT_TRUE(run.output.startsWith("Game         Found  Folder           Started by\n")) << "no terminal, no limit";
    EXPECT_EQ(terminal.text(), "");
}

TEST_F(OnTerminal, ALongCatalogueShowsProgressAndErasesItBeforeTheAnswers) {
    FindProgram program;
    program.setFakeMode("slow"); // two finders a game, 50 ms each
    const QString catalogue = program.file("games.json", manyGames(10));
    PseudoTerminal terminal(80);
    program.redirect(terminal.name(), terminal.name());
    EXPECT_EQ(program.run({catalogue}).exitStatus, 0);

    const QStringList lines = terminal.text().split('\r');
    ASSERT_GE(lines.size(), 4) << terminal.text().toStdString();
    EXPECT_EQ(lines.first(), "");
    const QRegularExpression step("^asking ([0-9]+)/10: Spiel \\1 ?$");
    const auto isStep = [&](const QString& line) { return step.match(line).hasMatch(); };
    EXPECT_TRUE(std::all_of(lines.begin() + 1, lines.end() - 2, isStep)) << terminal.text().toStdString();
    EXPECT_EQ(lines.at(lines.size() - 2), QString(Find::displayWidth(lines.at(lines.size() - 3)), ' '));
    EXPECT_TRUE(withoutColours(lines.last()).startsWith("Game      Found  Folder")) << lines.last().toStdString();
}

TEST_F(OnTerminal, WithoutOneThereIsNoProgress) {
    FindProgram program;
    program.setFakeMode("slow");
    const QString catalogue = program.file("games.json", manyGames(10));
    EXPECT_EQ(program.run({catalogue}).errors, "");

    PseudoTerminal terminal(80);
    program.setVariable("TERM", "dumb");
    program.redirect(QString(), terminal.name());
    program.run({catalogue});
    EXPECT_EQ(terminal.text(), "");
}

TEST_F(OnTerminal, AComplaintErasesTheProgressFirst) {
    FindProgram program;
    program.setFakeMode("slow and loud"); // warns in every search
    PseudoTerminal terminal(80);
    program.redirect(QString(), terminal.name());
    program.run({program.file("games.json", manyGames(10))});
    const QString text = terminal.text();
    EXPECT_TRUE(text.contains("luruludri-find: ")) << text.toStdString();
    EXPECT_TRUE(text.contains(QRegularExpression("\rasking [0-9]+/10: Spiel [0-9]+ *\r *\rluruludri-find: ")))
        << text.toStdString();
    EXPECT_FALSE(text.contains(QRegularExpression("asking[^\r]*luruludri-find"))) << text.toStdString();
}

TEST(OnAFullDisk, AnswersThatCannotBeWrittenAreAFault) {
    FindProgram program;
    program.redirect("/dev/full", QString());
    const QString catalogue = program.file("games.json", twoGames);
    for (const QStringList& arguments :
         {QStringList{catalogue}, QStringList{"--json", catalogue}, QStringList{"runtimes"}, QStringList{"forget", "x"},
          QStringList{"--help"}, QStringList{"--json", "--help"}}) {
        const FindRun run = program.run(arguments);
        EXPECT_EQ(run.exitStatus, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(run.errors, "luruludri-find: the answers could not be written: the disk is full\n")
            << arguments.join(' ').toStdString();
    }
}

} // namespace
