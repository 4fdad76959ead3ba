#include "FindTest.h"

#include "common/QtPrinters.h"
#include "find/cli/CommandForms.h"
#include "recordings/PcFile.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr const char* twoGames = R"({"games": [
    {"name": "Käferrennen", "finders": [{"type": "universalApp", "packageFamily": "installed"}]},
    {"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "x"}]}]})";

/// Expects a run that failed with one line of complaint that ends so, and no answers.
void expectComplaint(const FindRun& run, const QString& end) {
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_TRUE(run.errors.startsWith("luruludri-find: ")) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.endsWith(end + "\n")) << run.errors.toStdString() << "\nshould end:\n" << end.toStdString();
    EXPECT_EQ(run.errors.count("\n"), 1);
}

/// The same for arguments that are wrong, where a second line points to the help, of the command if there is one.
void expectRefusal(const FindRun& run, const QString& complaint, const QString& command = {}) {
    EXPECT_EQ(run, failed("luruludri-find: " + complaint + "\nluruludri-find: try luruludri-find " +
                          (command.isEmpty() ? "" : command + ' ') + "--help\n"));
}

class Program : public FindTest {
protected:
    const QString catalogue = program.file("games.json", twoGames);
};

class ProgramWithRecordings : public RecordingFindTest {
protected:
    const QString catalogue = program.file("games.json", twoGames);
};

TEST_F(Program, TheExitStatusTellsWhetherAllWereFound) {
    const QString file = program.file("Spiele für Käfer.json", twoGames);
    EXPECT_EQ(program.run({file}).exitStatus, 1);
    EXPECT_EQ(program.run({"--game", "Käferrennen", file}).exitStatus, 0);
    EXPECT_EQ(program.run({"--game", "Wal", file}).exitStatus, 1);
}

TEST_F(Program, TheCatalogueBesideTheProgramIsAskedUnlessAnotherIsGiven) {
    const FindRun run = FindProgram().run({});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.output.contains("Nordlicht Tactics")) << run.output.toStdString();
}

TEST_F(Program, OnlyTheGamesThatAreNamedAreAskedFor) {
    const FindRun one = program.run({"--game", "KÄFERRENNEN", catalogue});
    EXPECT_TRUE(one.output.contains("Käferrennen"));
    EXPECT_FALSE(one.output.contains("Wal"));
    EXPECT_EQ(program.run({"--game", "wal", catalogue, "--game=käferrennen"}).output, program.run({catalogue}).output);

    expectComplaint(program.run({"--game", "Käfer", catalogue}),
                    "games.json: no game is named \"Käfer\"; did you mean \"Käferrennen\"?");
}

TEST_F(Program, WhatGoesToAPipeIsPlainAndWholeWhateverTheEnvironmentSays) {
    const QString plain = program.run({catalogue}).output;
    EXPECT_TRUE(plain.contains("\nKäferrennen  yes    D:\\Spiele\\Käfer  steam://launch/42/VR\n"))
        << plain.toStdString();
    program.setVariable("COLUMNS", "30");
    program.setVariable("TERM", "xterm-256color");
    EXPECT_EQ(program.run({catalogue}).output, plain);
}

TEST_F(Program, HelpAndVersionNeedNothingElse) {
    for (const char* const option : {"--help", "-h"}) {
        const FindRun help = program.runBare({option});
        EXPECT_EQ(help.exitStatus, 0);
        EXPECT_EQ(help.errors, "");
        for (const char* name : {"CATALOGUE", "runtimes", "locate", "forget", "--plugin", "--pc", "--game", "--json",
                                 "--version", "Exit status"}) {
            EXPECT_TRUE(help.output.contains(name)) << name;
        }
    }
    for (const char* const option : {"--version", "-V"}) {
        const FindRun version = program.runBare({option});
        EXPECT_EQ(version.exitStatus, 0);
        EXPECT_TRUE(version.output.startsWith("luruludri-find ")) << version.output.toStdString();
        EXPECT_EQ(version.output.count("\n"), 1);
    }
}

TEST_F(Program, EachCommandHasAHelpOfItsOwnWithAnExample) {
    const QString whole = program.runBare({"--help"}).output;
    for (const Find::CommandForm& form : Find::commandForms()) {
        const QString name = QString::fromLatin1(form.name);
        const FindRun help = program.runBare({name, "--help"});
        EXPECT_EQ(help.exitStatus, 0);
        EXPECT_EQ(help.errors, "");
        EXPECT_TRUE(help.output.contains("\nUsage: luruludri-find " + name)) << help.output.toStdString();
        EXPECT_TRUE(help.output.contains("\nExample:\n  luruludri-find " + name)) << help.output.toStdString();
        EXPECT_TRUE(whole.contains("\n  " + name + " ")) << whole.toStdString();
    }
}

/// What is asked for, in today's words or in those of before, comes down to the same.
TEST_F(Program, FindIsWhatIsDoneWithoutACommand) {
    const FindRun run = program.run({"--json", "--game", "Wal", catalogue});
    EXPECT_TRUE(run.output.contains("Wal"));
    EXPECT_EQ(program.run({"find", "--json", "--game", "Wal", catalogue}).output, run.output);
    EXPECT_EQ(program.run({"--json", "find", catalogue, "--game", "Wal"}).output, run.output);
    EXPECT_EQ(program.run({"--game=Käfer", "--game=Wal", "--json", "--json", "--", catalogue}).exitStatus, 2);
}

TEST_F(Program, ValuesAreTakenAsTheyAre) {
    const QString odd = program.file("odd.json", R"({"games": [{"name": "[a,b]", "finders": []},
        {"name": "list", "finders": []}, {"name": "--all", "finders": []}, {"name": "/x", "finders": []}]})");
    for (const char* const name : {"[a,b]", "list", "--all", "/x"}) {
        EXPECT_EQ(program.run({"--game", name, odd}).exitStatus, 1) << name;
        EXPECT_EQ(program.run({"explain", "--", name, odd}).errors,
                  "luruludri-find: " LURULUDRI_FAKE_PLUGIN ": this plug-in writes no trace\n")
            << name;
    }
}

TEST_F(Program, StandardInputIsRead) {
    program.setInput(twoGames);
    EXPECT_EQ(program.run({"-"}).output, program.run({catalogue}).output);
    program.setInput("{\"games\": [\n    \"abc\n]}");
    expectComplaint(program.run({"-"}), "luruludri-find: standard input:2:5: the string is not closed");
}

TEST_F(ProgramWithRecordings, ARecordedPcIsReadFromStandardInput) {
    program.setInput(Recordings::renderPcFile({}));
    const FindRun run = program.run({"--pc", "-", catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.errors, "");
    program.setInput("{");
    const FindRun broken = program.run({"--pc", "-", catalogue});
    EXPECT_EQ(broken.exitStatus, 2);
    EXPECT_TRUE(broken.errors.startsWith("luruludri-find: standard input:1: ")) << broken.errors.toStdString();
}

/// The messages of the reply's errors.
QStringList errorsOf(const FindRun& run) {
    EXPECT_EQ(run.errors, "");
    QStringList messages;
    const QJsonObject reply = QJsonDocument::fromJson(run.output.toUtf8()).object();
    EXPECT_EQ(reply["version"].toInt(), 1);
    for (const QJsonValue error : reply["errors"].toArray()) {
        messages.append(error["message"].toString());
    }
    return messages;
}

TEST_F(Program, WithJsonErrorsAreJsonToo) {
    const FindRun broken = program.run({"--json", program.file("Käfer.json", "{\"games\": [\n    \"abc\n]}")});
    EXPECT_EQ(broken.exitStatus, 2);
    EXPECT_EQ(errorsOf(broken), QStringList{"the string is not closed"});
    const QJsonObject error = QJsonDocument::fromJson(broken.output.toUtf8())["errors"][0].toObject();
    EXPECT_TRUE(error["file"].toString().endsWith("Käfer.json"));
    EXPECT_EQ(error["line"].toInt(), 2);
    EXPECT_EQ(error["column"].toInt(), 5);

    const FindRun wrong = program.run({"runtimes", "--json", "--jason"});
    EXPECT_EQ(wrong.exitStatus, 2);
    EXPECT_EQ(errorsOf(wrong), QStringList{"unknown option \"--jason\"; did you mean \"--json\"?"});

    EXPECT_EQ(errorsOf(program.run({"--json", "locate", "Käfer", "D:\\X"})),
              QStringList{"locate does not take --json"});
    EXPECT_EQ(errorsOf(program.run({"--json", "forget", "Käfer"})), QStringList{"forget does not take --json"});

    program.setFakeMode("no memory");
    EXPECT_EQ(errorsOf(program.run({"--json", "runtimes"})), QStringList{"out of memory"});
}

TEST_F(Program, OfManyFaultsTheFirstHundredAreTold) {
    QByteArray empty = "{}";
    const QString file = program.file("x.json", "{\"games\": [" + (empty + ",").repeated(59) + empty + "]}");
    const QStringList errors = program.run({file}).errors.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(errors.size(), 101);
    EXPECT_EQ(errors.back(), "luruludri-find: " + QDir::toNativeSeparators(file) + ": and 20 more faults");
}

TEST_F(Program, AWordThatIsNoCatalogueMayHaveBeenMeantOtherwise) {
    const auto meant = [&](const QStringList& arguments) {
        return program.run(arguments).errors.section("; did you mean ", 1).trimmed();
    };
    EXPECT_EQ(meant({"help"}), "\"--help\"?");
    EXPECT_EQ(meant({"/?"}), "\"--help\"?");
    EXPECT_EQ(meant({"version"}), "\"--version\"?");
    EXPECT_EQ(meant({"runtime"}), "\"runtimes\"?");
    EXPECT_EQ(meant({"--versoin"}), "\"--version\"?\nluruludri-find: try luruludri-find --help");
    EXPECT_EQ(meant({"explain", "Lantern", "Harbour"}), "explain \"Lantern Harbour\"?");
}

TEST_F(Program, TellsItsVersionAfterACommandToo) {
    EXPECT_EQ(program.run({"find", "-V"}).output, program.run({"--version"}).output);
    EXPECT_TRUE(program.run({"list", "--version"}).output.startsWith("luruludri-find "));
}

TEST_F(ProgramWithRecordings, SaysWhenNoPcIsAsked) {
    for (const QStringList& arguments : {QStringList{catalogue}, QStringList{"list"}, QStringList{"runtimes"},
                                         QStringList{"record", program.folder() + "/x", catalogue}}) {
        EXPECT_EQ(program.runBare(arguments).errors,
                  "luruludri-find: no recorded PC is chosen (--pc), so this system is asked, which is not Windows\n");
    }
}

TEST_F(ProgramWithRecordings, APipeInThePlaceOfARecordingIsTold) {
    expectComplaint(program.run({"--pc", "/dev/null"}),
                    "luruludri-find: /dev/null: a pipe or a device, not a file or a folder");
}

TEST_F(ProgramWithRecordings, AFaultOfARecordingIsPlacedInJson) {
    const QString pc = program.file("pc.json", "{\"format\": \"luruludri-pc\", \"version\": 1,\n\"volumes\": 3}");
    const QString cut = program.file("cut.json", "{\n\n");
    for (const auto& [file, line] : {std::pair(pc, 2), std::pair(cut, 3)}) {
        const FindRun run = program.run({"--json", "--pc", file, catalogue});
        EXPECT_EQ(run.exitStatus, 2);
        const QJsonObject error = QJsonDocument::fromJson(run.output.toUtf8())["errors"][0].toObject();
        EXPECT_EQ(error["file"].toString(), file);
        EXPECT_EQ(error["line"].toInt(), line) << error["message"].toString().toStdString();
    }
}

TEST_F(ProgramWithRecordings, WithJsonAnswersAndErrorsAreOneObject) {
    program.file("pc/pc.json", "{");
    const FindRun run = program.run({"--json", "--pc", program.folder() + "/pc", catalogue});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_EQ(errorsOf(run).size(), 1) << run.output.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(run.output.toUtf8())["games"].toArray().size(), 2);
}

TEST_F(Program, AWordThatIsNearlyACommandIsTakenForOne) {
    expectRefusal(program.run({"recrod", "my-pc"}), "unknown command \"recrod\"; did you mean \"record\"?");
    const FindRun run = program.run({"runtime"});
    EXPECT_EQ(run.exitStatus, 2);
    EXPECT_TRUE(run.errors.endsWith("; did you mean \"runtimes\"?\n")) << run.errors.toStdString();
}

TEST_F(Program, WrongArgumentsAreRefused) {
    expectRefusal(program.run({""}), "CATALOGUE is empty");
    expectRefusal(program.run({catalogue, "zwölf"}), "unexpected argument \"zwölf\"");
    expectRefusal(program.run({catalogue, "--jason"}), "unknown option \"--jason\"; did you mean \"--json\"?");
    expectRefusal(program.run({catalogue, "--game"}), "--game: NAME is missing");
    expectRefusal(program.run({catalogue, "--json=x"}), "--json takes no value");
    expectRefusal(program.run({catalogue, "--pc", ""}), "--pc is empty");
    expectRefusal(program.run({catalogue, "--plugin="}), "--plugin is empty");
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST_F(Program, WrongCommandsAreRefused) {
    expectRefusal(program.run({"locate"}), "locate: KEY is missing", "locate");
    expectRefusal(program.run({"locate", "Käfer"}), "locate: FOLDER is missing", "locate");
    expectRefusal(program.run({"locate", " ", "D:\\X"}), "KEY is empty", "locate");
    expectRefusal(program.run({"locate", "Käfer", ""}), "FOLDER is empty", "locate");
    expectRefusal(program.run({"locate", "Käfer", "D:\\X", ""}), "CATALOGUE is empty", "locate");
    expectRefusal(program.run({"locate", "Käfer", "D:\\X", "games.json", "zwölf"}), "unexpected argument \"zwölf\"",
                  "locate");
    expectRefusal(program.run({"forget"}), "forget: KEY is missing", "forget");
    expectRefusal(program.run({"forget", "Käfer", "zwölf"}), "unexpected argument \"zwölf\"", "forget");
    expectRefusal(program.run({"runtimes", "zwölf"}), "unexpected argument \"zwölf\"", "runtimes");
    expectRefusal(program.run({"--game", "Käfer", "runtimes"}), "runtimes does not take --game", "runtimes");
    expectRefusal(program.run({"runtimes", "--game", "Käfer"}), "runtimes does not take --game", "runtimes");
    expectRefusal(program.run({"games.json", "runtimes"}), "unexpected argument \"games.json\"", "runtimes");
    expectRefusal(program.run({"--plugin=", "runtimes"}), "--plugin is empty", "runtimes");
    expectRefusal(program.run({"--pc", "-", "-"}), "standard input cannot be both the recorded PC and the catalogue");
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST_F(Program, ACatalogueThatCannotBeReadIsToldWithItsName) {
    for (const QString file : {"/Käfer.json", ""}) {
        const FindRun run = program.run({program.folder() + file});
        EXPECT_EQ(run.exitStatus, 2);
        EXPECT_TRUE(run.errors.contains(file.mid(1) + ": cannot be read: ")) << run.errors.toStdString();
    }
    EXPECT_FALSE(program.run({"explain", "Käfer", program.folder() + "/Käfer.json"}).errors.contains("did you mean"));
    if (Find::isPcItself()) {
        expectComplaint(program.run({"Q:\\Käfer.json"}), "Q:\\Käfer.json: cannot be read: there is no drive Q:");
    }
    expectComplaint(program.run({program.file("empty.json", "")}), "empty.json: the file is empty");
}

TEST_F(Program, ABrokenCatalogueIsToldWithThePlace) {
    expectComplaint(program.run({program.file("Käfer.json", "{\"games\": [\n    \"abc\n]}")}),
                    "Käfer.json:2:5: the string is not closed");
    expectComplaint(program.run({program.file("b.json", R"({"games": [{"name": "a", "finders": [{}]}]})")}),
                    "b.json:1:38: games[0].finders[0]: \"type\" is missing");
    expectComplaint(program.run({program.file("c.json", R"({"games": [], "a\nb\u001b": 1})")}),
                    "c.json:1:15: unknown field \"a b \" (known: games, $schema)");
    EXPECT_TRUE(program.fakeLog().isEmpty());
}

TEST_F(Program, WhatIsNoPluginIsTold) {
    const auto runWith = [&](const QString& plugin) { return program.runBare({"--plugin", plugin, catalogue}); };

    const QStringList bad = {program.folder() + "/Käfer", program.file("text", "no library"), program.folder(),
                             LURULUDRI_EMPTY_PLUGIN};
    for (const QString& plugin : bad) {
        const FindRun run = runWith(plugin);
        expectComplaint(run, "");
        EXPECT_TRUE(run.errors.contains(QFileInfo(plugin).fileName())) << run.errors.toStdString();
    }
    EXPECT_TRUE(runWith(LURULUDRI_EMPTY_PLUGIN).errors.contains("Create"));
}

TEST_F(Program, APluginThatFailsIsTold) {
    program.setFakeMode("no factory");
    expectComplaint(program.run({catalogue}), ": Create made no factory");
    program.setFakeMode("no memory");
    expectComplaint(program.run({catalogue}), "luruludri-find: out of memory");
}

TEST_F(ProgramWithRecordings, ARecordedPcWithProblemsStillAnswers) {
    program.file("Käfer-PC/pc.json", "{");
    const QString folder = program.folder() + "/Käfer-PC";

    const FindRun chosen = program.run({"--pc", folder, catalogue});
    EXPECT_EQ(chosen.exitStatus, 2);
    EXPECT_EQ(chosen.output, program.run({catalogue}).output);
    EXPECT_TRUE(chosen.errors.startsWith("luruludri-find: " + folder + "/pc.json:")) << chosen.errors.toStdString();

    program.setVariable(Recordings::environmentVariable, folder);
    EXPECT_EQ(program.run({catalogue}).errors, chosen.errors);
    EXPECT_EQ(program.run({catalogue}).exitStatus, 2);
}

TEST_F(ProgramWithRecordings, ARecordedPcThatIsMissingIsTold) {
    const QString missing = program.folder() + "/kein Käfer";
    expectComplaint(program.run({"--pc", missing, catalogue}), missing + ": no such file or folder");
    expectComplaint(program.run({"--pc", catalogue, catalogue}), catalogue + ": no recorded PC here");

    program.setVariable(Recordings::environmentVariable, missing);
    expectComplaint(program.run({catalogue}), missing + ": no such file or folder");
    program.setVariable(Recordings::environmentVariable, "");
    EXPECT_EQ(program.run({catalogue}).exitStatus, 1);
}

TEST_F(ProgramWithRecordings, ARecordedPcThatLiesALevelDeeperIsNamed) {
    program.file("nest/my-pc/pc.json", "{}");
    const QString nest = program.folder() + "/nest";
    expectComplaint(program.run({"--pc", nest, catalogue}),
                    nest + ": no recorded PC here; did you mean " + nest + "/my-pc?");
    program.file("nest/sent.json", Recordings::renderPcFile({}));
    expectComplaint(program.run({"--pc", nest, catalogue}),
                    nest + ": no recorded PC here; did you mean " + nest + "/my-pc or " + nest + "/sent.json?");
    EXPECT_EQ(program.run({"--pc", nest + "/sent.json", catalogue}).errors, "");
}

TEST_F(Program, WithoutRecordingsAskingForOneIsRefused) {
    if (!Find::isPcItself()) {
        GTEST_SKIP() << "recordings are known here";
    }
    expectComplaint(program.run({"--pc", program.folder(), catalogue}),
                    "luruludri-find: --pc: this build answers from the PC it runs on");

    program.setVariable(Recordings::environmentVariable, program.folder());
    EXPECT_EQ(program.run({catalogue}).exitStatus, 1);
}

} // namespace
