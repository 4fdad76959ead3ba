#include "FindTest.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr const char* twoGames = R"({"games": [
    {"name": "Käferrennen", "finders": [{"type": "folder", "folder": "D:\\Käfer", "executables": ["a.exe"]}]},
    {"name": "Wal", "finders": [{"type": "folder", "folder": "D:\\Wal", "executables": ["wal.exe"]}]}]})";

class ExplainCommand : public FindTest {
protected:
    /// What the program explains of a game, with the real plug-in, over the PC under test.
    FindRun explain(const QStringList& arguments) {
        program.setVariable(Recordings::environmentVariable, qEnvironmentVariable(Recordings::environmentVariable));
        return program.runBare(QStringList{"explain"} + arguments);
    }

    /// A program that no catalogue of these tests has.
    void installQualle() {
        addProgram(pc, {"Qualle", "Ätherqualle", "D:\\Qualle", {}, Platform::RootKey::LocalMachine, View::view64});
        pc.file("D:\\Qualle\\qualle.exe");
    }

    TestPc pc;
    const QString catalogue = program.file("Käfer.json", twoGames);
};

TEST_F(ExplainCommand, TellsWhyAGameWasNotFound) {
    EXPECT_EQ(explain({"wal", catalogue}),
              printed(1, "Wal: not found\n\n1. folder: folder \"D:\\Wal\", executables [\"wal.exe\"]\n"
                         "   D:\\Wal: missing\n   * The folder D:\\Wal is missing.\n   => not found\n"));
}

TEST_F(ExplainCommand, EndsWellForAGameThatIsFound) {
    pc.file("D:\\Käfer\\a.exe");
    const FindRun run = explain({"Käferrennen", catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_TRUE(run.output.startsWith("Käferrennen: found in D:\\Käfer, started by D:\\Käfer\\a.exe\n"))
        << run.output.toStdString();
}

TEST_F(ExplainCommand, LeavesNoFileBehind) {
    const QString temporary = program.folder() + "/temp";
    ASSERT_TRUE(QDir().mkpath(temporary));
    for (const char* variable : {"TMPDIR", "TMP", "TEMP"}) {
        program.setVariable(variable, QDir::toNativeSeparators(temporary));
    }
    EXPECT_EQ(explain({"Wal", catalogue}).exitStatus, 1);
    EXPECT_EQ(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

constexpr const char* qualleLine =
    R"({"name": "Ätherqualle", "finders": [{"type": "uninstall", "displayName": "Ätherqualle", "executables": ["qualle.exe"]}]})";

TEST_F(ExplainCommand, LooksForAGameThatTheCatalogueDoesNotHaveInAllThatIsInstalled) {
    installQualle();
    const QString output = "ätherQUALLE: not in the catalogue\ninstalled as\nÄtherqualle\n"
                           "    Uninstall registry: D:\\Qualle\n    ";
    EXPECT_EQ(explain({"ätherQUALLE", catalogue}), printed(0, output + qualleLine + '\n'));
    EXPECT_TRUE(explain({"Quallen", catalogue}).output.startsWith("Quallen: not in the catalogue\nnothing"));
    EXPECT_TRUE(explain({"Qualle", catalogue}).output.contains(qualleLine)) << "a part of the name";
    EXPECT_TRUE(explain({"Ätherqalle", catalogue}).output.contains(qualleLine)) << "a slip";
}

TEST_F(ExplainCommand, NamesTheGamesOfTheCatalogueThatAreCalledAlike) {
    const FindRun run = explain({"käfer", catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.output, "käfer: not in the catalogue; did you mean \"Käferrennen\"?\n"
                          "nothing installed has a similar name\n");
    EXPECT_EQ(program.run({"--game", "Wal (Demo)", catalogue}).errors,
              "luruludri-find: " + catalogue + ": no game is named \"Wal (Demo)\"; did you mean \"Wal\"?\n");
}

TEST_F(ExplainCommand, TellsTheSameAsJson) {
    installQualle();
    const auto reply = [&](const QString& name) {
        const FindRun run = explain({name, catalogue, "--json"});
        EXPECT_EQ(run.errors, "");
        return QJsonDocument::fromJson(run.output.toUtf8()).object();
    };
    const QJsonObject wal = reply("Wal");
    EXPECT_EQ(wal["game"]["name"].toString(), "Wal");
    EXPECT_EQ(wal["game"]["found"], QJsonValue(false));
    const QJsonArray lines = wal["explanation"].toArray();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0],
              (QJsonObject{{"kind", "finder"}, {"text", "1. folder: folder \"D:\\Wal\", executables [\"wal.exe\"]"}}));
    EXPECT_EQ(lines[1], (QJsonObject{{"kind", "seen"}, {"text", "D:\\Wal: missing"}}));
    EXPECT_EQ(lines[2], (QJsonObject{{"kind", "reason"}, {"text", "* The folder D:\\Wal is missing."}}));
    EXPECT_EQ(lines[3], (QJsonObject{{"kind", "outcome"}, {"text", "=> not found"}}));

    const QJsonObject other = reply("Ätherqalle");
    EXPECT_EQ(other["name"].toString(), "Ätherqalle");
    EXPECT_EQ(other["installed"][0]["name"].toString(), "Ätherqualle");
    EXPECT_EQ(other["installed"][0]["folder"].toString(), "D:\\Qualle");
    EXPECT_EQ(reply("Käferrenen")["alike"], QJsonArray{"Käferrennen"});
}

TEST_F(ExplainCommand, RefusesAPlugInThatTellsNoTrace) {
    const FindRun run = program.run({"explain", "Wal", catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.errors.endsWith(": this plug-in writes no trace\n")) << run.errors.toStdString();
}

TEST_F(ExplainCommand, RefusesWrongArguments) {
    const auto complaint = [&](const QStringList& arguments) {
        const FindRun run = program.run(arguments);
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_EQ(run.output, "");
        return run.errors.section('\n', 0, 0);
    };
    EXPECT_EQ(complaint({"explain"}), "luruludri-find: explain: NAME is missing");
    EXPECT_EQ(complaint({"explain", " "}), "luruludri-find: NAME is empty");
    EXPECT_EQ(complaint({"explain", "Wal", "a.json", "b"}), "luruludri-find: unexpected argument \"b\"");
    EXPECT_EQ(complaint({"--game", "Wal", "explain", "Wal"}), "luruludri-find: explain does not take --game");
    EXPECT_EQ(complaint({"--all", "a.json"}), "luruludri-find: find does not take --all");
}

} // namespace
