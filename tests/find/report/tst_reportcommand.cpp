#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

namespace {

constexpr const char* noGames = R"({"games": []})";

TEST(ReportCommand, WrongUseIsRefused) {
    const FindProgram program;
    const auto errors = [&program](const QStringList& arguments) { return program.run(arguments).errors; };
    EXPECT_TRUE(errors({"report", "a", "b", "c"}).contains("unexpected argument \"c\""));
    const FindRun withJson = program.run({"report", "a", "--json"});
    EXPECT_TRUE(withJson.output.contains("report does not take --json")) << withJson.output.toStdString();
    EXPECT_EQ(program.run({"report", "a", "b", "c"}).exitStatus, 2);
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST(ReportCommand, AFileThatIsThereIsLeftAlone) {
    const FindProgram program;
    const QString page = program.file("page.html", "mine");
    const FindRun run = program.run({"report", page, program.file("none.json", noGames)});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: " + page + ": the file exists already\n");
    EXPECT_TRUE(program.fakeLog().isEmpty()) << "nothing was asked in vain";
}

TEST(ReportCommand, APluginThatTellsNothingLeavesNoFile) {
    FindProgram program;
    const QString catalogue = program.file("none.json", noGames);
    const QString folder = QFileInfo(program.file("new/x", "")).path();
    const FindRun run = program.run({"report", folder + "/page", catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.errors, "luruludri-find: the plug-in did not tell what it read\n");
    program.setFakeMode("no memory");
    EXPECT_EQ(program.run({"report", folder + "/page", catalogue}).errors, "luruludri-find: out of memory\n");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{"x"});
}

TEST(ReportCommand, EverythingIsGoneBeforeThePluginIs) {
    const FindProgram program;
    program.run({"report", program.folder() + "/new", program.file("none.json", noGames)});
    const QStringList log = program.fakeLog();
    EXPECT_EQ(log.mid(log.size() - 2), (QStringList{"~Create", "unloaded"}));
}

} // namespace
