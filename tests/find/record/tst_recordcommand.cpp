#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char* noGames = R"({"games": []})";

TEST(RecordCommand, WrongUseIsRefused) {
    const FindProgram program;
    const QString refusal = "luruludri-find: %1\nluruludri-find: try luruludri-find --help\n";
    const auto errors = [&program](const QStringList& arguments) { return program.run(arguments).errors; };
    EXPECT_EQ(errors({"record"}), refusal.arg("record: the folder is missing"));
    EXPECT_EQ(errors({"record", "a", "b", "c"}), refusal.arg("surplus argument \"c\""));
    EXPECT_EQ(errors({"record", "a", "--json"}), refusal.arg("--json: not with record"));
    EXPECT_EQ(errors({"record", "a", "--game", "x"}), refusal.arg("--game: not with record"));
    EXPECT_EQ(errors({"runtimes", "--keep-names"}), refusal.arg("--keep-names: only with record"));
    EXPECT_EQ(program.run({"record"}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST(RecordCommand, AFolderThatIsInUseIsLeftAlone) {
    const FindProgram program;
    const QString catalogue = program.file("none.json", noGames);
    const QString full = QFileInfo(program.file("full/x.txt", "mine")).path();
    const FindRun run = program.run({"record", full, catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: " + full + ": the folder is not empty\n");
    EXPECT_EQ(QDir(full).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"x.txt"});
    EXPECT_EQ(QFileInfo(full + "/x.txt").size(), 4);
    EXPECT_EQ(program.run({"record", full + "/x.txt", catalogue}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "nothing was asked in vain";
}

TEST(RecordCommand, APluginThatTellsNothingLeavesNoFolder) {
    FindProgram program;
    const QString catalogue = program.file("none.json", noGames);
    const QString folder = program.folder() + "/new";
    const FindRun run = program.run({"record", folder, catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: the plug-in did not tell what it read\n");
    EXPECT_FALSE(QFileInfo::exists(folder));
    program.setFakeMode("no memory");
    EXPECT_EQ(program.run({"record", folder, catalogue}).errors, "luruludri-find: out of memory\n");
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST(RecordCommand, EverythingIsGoneBeforeThePluginIs) {
    const FindProgram program;
    program.run({"record", program.folder() + "/new", program.file("none.json", noGames)});
    const QStringList log = program.fakeLog();
    EXPECT_EQ(log.mid(log.size() - 2), (QStringList{"~Create", "unloaded"}));
}

} // namespace
