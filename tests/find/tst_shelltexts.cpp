// What is made of the same table as the help: the manual page and what has shells complete the command line.

#include "find/cli/CommandForms.h"
#include "find/cli/ShellTexts.h"

#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

QString shellFile(const QString& name) {
    return docText("shell/" + name);
}

TEST(ShellTexts, TheFilesThatAreInstalledAreWhatTheProgramPrints) {
    const FindProgram program;
    EXPECT_EQ(program.runBare({"completion", "bash"}).output, shellFile("luruludri-find.bash"));
    EXPECT_EQ(program.runBare({"completion", "zsh"}).output, shellFile("_luruludri-find"));
    EXPECT_EQ(program.runBare({"completion", "PowerShell"}).output, shellFile("luruludri-find.ps1"));
    EXPECT_EQ(program.runBare({"manual"}).output, shellFile("luruludri-find.1"));
}

TEST(ShellTexts, NameEachCommandAndItsOptions) {
    for (const QString& shell : Find::shells()) {
        const QString text = Find::completionFor(shell);
        for (const Find::CommandForm& form : Find::commandForms()) {
            EXPECT_TRUE(text.contains(form.name)) << shell.toStdString() << form.name;
        }
        for (const Find::Switch* const one : Find::allSwitches()) {
            EXPECT_TRUE(text.contains(one->name)) << shell.toStdString() << one->name;
        }
    }
    const QString manual = Find::manualPage();
    for (const Find::CommandForm& form : Find::commandForms()) {
        EXPECT_TRUE(manual.contains("\n.SS " + QString(form.name) + "\n")) << form.name;
        EXPECT_TRUE(manual.contains("\n.B luruludri-find " + QString(form.name) + "\n")) << form.name;
    }
    EXPECT_FALSE(manual.contains("{{")) << manual.toStdString();
}

TEST(ShellTexts, AShellThatIsNotKnownIsRefused) {
    const FindRun run = FindProgram().runBare({"completion", "fish"});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: completion: there is none for \"fish\", only for bash, zsh, powershell\n");
    EXPECT_TRUE(FindProgram().runBare({"completion", "bashh"}).errors.endsWith("; did you mean \"bash\"?\n"));
    EXPECT_EQ(Find::completionFor("fish"), "");
}

} // namespace
