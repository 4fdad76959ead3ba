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

TEST(RecordCommand, WrongUseIsRefused) {
    const FindProgram program;
    const QString refusal = "luruludri-find: %1\nluruludri-find: try luruludri-find --help\n";
    const auto errors = [&program](const QStringList& arguments) { return program.run(arguments).errors; };
    EXPECT_EQ(errors({"record", "a", "b", "c"}), refusal.arg("unexpected argument \"c\""));
    const FindRun withJson = program.run({"record", "a", "--json"});
    EXPECT_EQ(withJson.exitStatus, 2);
    EXPECT_TRUE(withJson.output.contains("record does not take --json")) << withJson.output.toStdString();
    EXPECT_EQ(errors({"record", "a", "--game", "x"}), refusal.arg("record does not take --game"));
    EXPECT_EQ(errors({"runtimes", "--keep-names"}), refusal.arg("runtimes does not take --keep-names"));
    EXPECT_EQ(program.run({"record", "a", "b", "c"}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST(RecordCommand, AFileThatIsThereIsLeftAlone) {
    const FindProgram program;
    const QString catalogue = program.file("none.json", noGames);
    const FindRun run = program.run({"record", catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: " + catalogue + ": the file exists already\n");
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "nothing was asked in vain";
}

TEST(RecordCommand, APluginThatTellsNothingLeavesNoFile) {
    FindProgram program;
    const QString catalogue = program.file("none.json", noGames);
    const QString folder = QFileInfo(program.file("new/x", "")).path();
    const FindRun run = program.run({"record", folder + "/pc", catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: the plug-in did not tell what it read\n");
    program.setFakeMode("no memory");
    EXPECT_EQ(program.run({"record", folder + "/pc", catalogue}).errors, "luruludri-find: out of memory\n");
    EXPECT_EQ(filesIn(folder), QStringList{"x"});
}

TEST(RecordCommand, AKillLeavesNothing) {
    FindProgram program;
    const QString catalogue = program.file("one.json", oneGame);
    const QString folder = QFileInfo(program.file("new/x", "")).path();
    const QString temporary = QFileInfo(program.file("temporary/x", "")).path();
    program.setFakeMode("endless");
    for (const char* const variable : {"TMPDIR", "TEMP", "TMP"}) {
        program.setVariable(variable, QDir::toNativeSeparators(temporary));
    }
    program.runUntilItSearches({"record", folder + "/pc", catalogue}, [](QProcess& process) { process.kill(); });
    EXPECT_EQ(filesIn(folder), QStringList{"x"});
    EXPECT_EQ(filesIn(temporary), QStringList{"x"});
}

TEST(RecordCommand, EverythingIsGoneBeforeThePluginIs) {
    const FindProgram program;
    program.run({"record", program.folder() + "/new", program.file("none.json", noGames)});
    const QStringList log = program.fakeLog();
    EXPECT_EQ(log.mid(log.size() - 2), (QStringList{"~Create", "unloaded"}));
}

} // namespace
