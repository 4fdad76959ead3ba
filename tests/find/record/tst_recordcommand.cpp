#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace {

constexpr const char* noGames = R"({"games": []})";

constexpr const char* oneGame =
    R"({"games": [{"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "Wal"}]}]})";

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

struct Command {
    const char* name;
    const char* ending; ///< of the file that it makes
};

/// What records a PC and what reports on it have in common.
class RecordCommand : public ::testing::TestWithParam<Command> {
protected:
    FindRun run(const QStringList& arguments) const { return program.run(QStringList{command} + arguments); }

    FindProgram program;
    const QString command = GetParam().name;
    const QString catalogue = program.file("none.json", noGames);
    const QString folder = QFileInfo(program.file("new/x", "")).path();
};

TEST_P(RecordCommand, WrongUseIsRefused) {
    const QString refusal = "luruludri-find: %1\nluruludri-find: try luruludri-find %2 --help\n";
    const FindRun surplus = run({"a", "b", "c"});
    EXPECT_EQ(surplus.exitStatus, 2);
    EXPECT_EQ(surplus.errors, refusal.arg("unexpected argument \"c\"", command));
    const FindRun withJson = run({"a", "--json"});
    EXPECT_EQ(withJson.exitStatus, 2);
    EXPECT_TRUE(withJson.output.contains(command + " does not take --json")) << withJson.output.toStdString();
    EXPECT_EQ(run({"a", "--game", "x"}).errors, refusal.arg(command + " does not take --game", command));
    EXPECT_EQ(program.run({"runtimes", "--keep-names"}).errors,
              refusal.arg("runtimes does not take --keep-names", "runtimes"));
    EXPECT_EQ(run({"-"}).errors,
              refusal.arg(command + ": a file or a folder is made, nothing is written to standard output", command));
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST_P(RecordCommand, AFileThatIsThereIsLeftAlone) {
    const QString file = program.file(QString("there") + GetParam().ending, "mine");
    const FindRun refused = run({file, catalogue});
    EXPECT_EQ(refused.exitStatus, 2);
    EXPECT_EQ(refused.errors, "luruludri-find: " + file + ": the file exists already\n");
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "nothing was asked in vain";
}

TEST_P(RecordCommand, APluginThatTellsNothingLeavesNoFile) {
    const FindRun silent = run({folder + "/pc", catalogue});
    EXPECT_EQ(silent.exitStatus, 2);
    EXPECT_EQ(silent.errors, "luruludri-find: the plug-in did not tell what it read\n");
    program.setFakeMode("no memory");
    EXPECT_EQ(run({folder + "/pc", catalogue}).errors, "luruludri-find: out of memory\n");
    EXPECT_EQ(filesIn(folder), QStringList{"x"});
}

TEST_P(RecordCommand, EverythingIsGoneBeforeThePluginIs) {
    run({folder + "/pc", catalogue});
    const QStringList log = program.fakeLog();
    EXPECT_EQ(log.mid(log.size() - 2), (QStringList{"~Create", "unloaded"}));
}

TEST_P(RecordCommand, AKillLeavesNothing) {
    const QString game = program.file("one.json", oneGame);
    const QString temporary = QFileInfo(program.file("temporary/x", "")).path();
    program.setFakeMode("endless");
    for (const char* const variable : {"TMPDIR", "TEMP", "TMP"}) {
        program.setVariable(variable, QDir::toNativeSeparators(temporary));
    }
    program.runUntilItSearches({command, folder + "/pc", game}, [](QProcess& process) { process.kill(); });
    EXPECT_EQ(filesIn(folder), QStringList{"x"});
    EXPECT_EQ(filesIn(temporary), QStringList{"x"});
}

INSTANTIATE_TEST_SUITE_P(Both, RecordCommand,
                         ::testing::Values(Command{"record", ".json"}, Command{"report", ".html"}));

} // namespace
