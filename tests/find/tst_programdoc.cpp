// docs/luruludri-find.md shows what the program really prints.

#include "FindTest.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "find/cli/CommandForms.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace {

/// A command line that the document shows, and what is printed.
struct Shown {
    QString prompt; ///< "$" for the sample PC, ">" for Windows
    QStringList arguments;
    QString output;
    bool isBegin = false; ///< only the output's begin is shown

    bool isHelp() const { return arguments.contains("--help"); }
};

std::vector<Shown> shownCommands() {
    const QStringList parts = docText("luruludri-find.md").split("```");
    std::vector<Shown> commands;
    for (int i = 1; i < parts.size(); i += 2) {
        const QString first = parts.at(i).section('\n', 1, 1);
        if (first.mid(2).startsWith("luruludri-find")) {
            Shown shown{first.left(1), QProcess::splitCommand(first.mid(2)).mid(1), parts.at(i).section('\n', 2),
                        false};
            shown.isBegin = shown.output.endsWith("…\n");
            shown.output.chop(shown.isBegin ? 2 : 0);
            commands.push_back(shown);
        }
    }
    return commands;
}

void expectShown(const FindProgram& program, const Shown& shown) {
    const FindRun run = program.runBare(shown.arguments);
    EXPECT_EQ(run.errors, "") << shown.arguments.join(' ').toStdString();
    const QString output = shown.isBegin ? run.output.left(shown.output.size()) : run.output;
    EXPECT_EQ(shown.output, output) << shown.arguments.join(' ').toStdString();
}

using ProgramDoc = FindTest;
using ProgramDocOfTheSamplePc = RecordingFindTest;

TEST_F(ProgramDoc, ShowsTheHelpAndOneOutputOfEachCommand) {
    const std::vector<Shown> commands = shownCommands();
    for (const Find::CommandForm& form : Find::commandForms()) {
        const QString name = form.name;
        const auto count = [&](bool isHelp) {
            return std::count_if(commands.begin(), commands.end(), [&](const Shown& shown) {
                const bool isCommand = shown.arguments.value(0) == name;
                const bool isNamed = isCommand || (name == "find" && shown.arguments.value(0) == "--game");
                return isNamed && shown.isHelp() == isHelp;
            });
        };
        EXPECT_GE(count(true), 1) << form.name;
        EXPECT_GE(count(false), 1) << form.name;
    }
}

TEST_F(ProgramDoc, EveryHelpIsWhatTheProgramPrints) {
    int count = 0;
    for (const Shown& shown : shownCommands()) {
        if (shown.isHelp()) {
            expectShown(program, shown);
            ++count;
        }
    }
    EXPECT_EQ(count, static_cast<int>(Find::commandForms().size()) + 1) << "the whole program's, too";
}

TEST_F(ProgramDocOfTheSamplePc, EveryOutputOfTheSamplePcIsWhatTheProgramPrints) {
    program.setVariable(Recordings::environmentVariable, LURULUDRI_SAMPLES "/pc");
    for (const Shown& shown : shownCommands()) {
        if (shown.prompt == "$" && !shown.isHelp()) {
            expectShown(program, shown);
        }
    }
}

TEST_F(ProgramDoc, EveryOutputOfWindowsIsWhatTheProgramPrints) {
    if (!Find::isPcItself()) {
        GTEST_SKIP() << "only Windows has a user's settings and drives";
    }
    TestPc pc;
    pc.file("D:\\Eigene Spiele\\Moosgarten\\bin\\Moosgarten.exe");
    for (const Shown& shown : shownCommands()) {
        if (shown.prompt == ">") {
            expectShown(program, shown);
        }
    }
}

} // namespace
