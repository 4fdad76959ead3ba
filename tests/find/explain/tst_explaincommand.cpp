#include "FindProgram.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
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

/// What the program explains of a game, with the real plug-in, over the PC under test.
FindRun explain(FindProgram& program, const QStringList& arguments) {
    program.setVariable(Recordings::environmentVariable, qEnvironmentVariable(Recordings::environmentVariable));
    return program.runBare(QStringList{"explain"} + arguments);
}

TEST(ExplainCommand, TellsWhyAGameWasNotFound) {
    TestPc pc;
    FindProgram program;
    const FindRun run = explain(program, {"wal", program.file("Käfer.json", twoGames)});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "Wal: not found\n\n1. folder: folder \"D:\\Wal\", executables [\"wal.exe\"]\n"
                          "   D:\\Wal: missing\n   * The folder D:\\Wal is missing.\n   => not found\n");
}

TEST(ExplainCommand, EndsWellForAGameThatIsFound) {
    TestPc pc;
    pc.file("D:\\Käfer\\a.exe");
    FindProgram program;
    const FindRun run = explain(program, {"Käferrennen", program.file("Käfer.json", twoGames)});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_TRUE(run.output.startsWith("Käferrennen: found in D:\\Käfer, started by D:\\Käfer\\a.exe\n"))
        << run.output.toStdString();
}

TEST(ExplainCommand, LeavesNoFileBehind) {
    TestPc pc;
    FindProgram program;
    const QString catalogue = program.file("Käfer.json", twoGames);
    const QString temporary = program.folder() + "/temp";
    ASSERT_TRUE(QDir().mkpath(temporary));
    for (const char* variable : {"TMPDIR", "TMP", "TEMP"}) {
        program.setVariable(variable, QDir::toNativeSeparators(temporary));
    }
    EXPECT_EQ(explain(program, {"Wal", catalogue}).exitStatus, 1);
    EXPECT_EQ(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

/// A PC with a program that no catalogue of these tests has.
void installQualle(TestPc& pc) {
    const TestKey key = {Platform::RootKey::LocalMachine,
                         "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Qualle", Platform::keyWow64_64Key};
    pc.value(key, "DisplayName", QString("Ätherqualle"));
    pc.value(key, "InstallLocation", QString("D:\\Qualle"));
    pc.file("D:\\Qualle\\qualle.exe");
}

constexpr const char* qualleLine =
    R"({"name": "Ätherqualle", "finders": [{"type": "uninstall", "displayName": "Ätherqualle", "executables": ["qualle.exe"]}]})";

TEST(ExplainCommand, LooksForAGameThatTheCatalogueDoesNotHaveInAllThatIsInstalled) {
    TestPc pc;
    installQualle(pc);
    FindProgram program;
    const QString catalogue = program.file("Käfer.json", twoGames);
    const FindRun run = explain(program, {"ätherQUALLE", catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, QString("ätherQUALLE: not in the catalogue\n"
                                  "installed as\n"
                                  "Ätherqualle\n"
                                  "    Uninstall registry: D:\\Qualle\n"
                                  "    ") +
                              qualleLine + "\n");
    EXPECT_TRUE(explain(program, {"Quallen", catalogue}).output.startsWith("Quallen: not in the catalogue\nnothing"));
    EXPECT_TRUE(explain(program, {"Qualle", catalogue}).output.contains(qualleLine)) << "a part of the name";
    EXPECT_TRUE(explain(program, {"Ätherqalle", catalogue}).output.contains(qualleLine)) << "a slip";
}

TEST(ExplainCommand, NamesTheGamesOfTheCatalogueThatAreCalledAlike) {
    TestPc pc;
    FindProgram program;
    const QString catalogue = program.file("Käfer.json", twoGames);
    const FindRun run = explain(program, {"käfer", catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.output, "käfer: not in the catalogue; did you mean \"Käferrennen\"?\n"
                          "nothing installed has a similar name\n");
    EXPECT_EQ(program.run({"--game", "Wal (Demo)", catalogue}).errors,
              "luruludri-find: " + catalogue + ": no game is named \"Wal (Demo)\"; did you mean \"Wal\"?\n");
}

TEST(ExplainCommand, TellsTheSameAsJson) {
    TestPc pc;
    installQualle(pc);
    FindProgram program;
    const QString catalogue = program.file("Käfer.json", twoGames);
    const auto reply = [&](const QString& name) {
        const FindRun run = explain(program, {name, catalogue, "--json"});
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

TEST(ExplainCommand, RefusesAPlugInThatTellsNoTrace) {
    FindProgram program;
    const FindRun run = program.run({"explain", "Wal", program.file("Käfer.json", twoGames)});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.errors.endsWith(": this plug-in writes no trace\n")) << run.errors.toStdString();
}

TEST(ExplainCommand, RefusesWrongArguments) {
    const FindProgram program;
    const auto complaint = [&program](const QStringList& arguments) {
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
