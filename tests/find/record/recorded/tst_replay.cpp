#include "FindProgram.h"
#include "recorded/FullPc.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char* noGames = R"({"games": []})";

class RecordTest : public ::testing::Test {
protected:
    void SetUp() override {
        program.setVariable("XDG_DATA_HOME", program.folder());
        program.setVariable("XDG_CONFIG_HOME", program.folder() + "/settings");
    }

    QString path(const QString& name) const { return program.folder() + '/' + name; }

    /// The text of the recording of that name.
    QString contents(const QString& name) const {
        QFile file(path(name) + ".json");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }

    bool tells(const QString& name, const QString& text) const {
        return contents(name).contains(text, Qt::CaseInsensitive);
    }

    /// Records `pc` as the file of that name in the test's.
    FindRun record(const QString& pc, const QString& name, const QString& catalogue, const QStringList& options = {}) {
        return program.runBare(QStringList{"--pc", pc, "record", path(name), catalogue} + options);
    }

    /// The answers for a catalogue on a recorded PC.
    QString answers(const QString& pc, const QString& catalogue) {
        const FindRun run = program.runBare({"--pc", pc, "--json", catalogue});
        EXPECT_EQ(run.errors, "");
        return run.output;
    }

    FindProgram program;
    const QString samplePc = LURULUDRI_SAMPLES "/pc";
    const QString sampleCatalogue = LURULUDRI_SAMPLES "/catalogue.json";
};

TEST_F(RecordTest, TheSamplePcAnswersAsItDid) {
    const FindRun run = record(samplePc, "käfer-pc", sampleCatalogue, {"--keep-names"});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(answers(path("käfer-pc.json"), sampleCatalogue), answers(samplePc, sampleCatalogue));
}

TEST_F(RecordTest, TheUsersNameIsReplaced) {
    ASSERT_EQ(record(samplePc, "pc", sampleCatalogue).exitStatus, 0);
    QString expected = answers(samplePc, sampleCatalogue);
    EXPECT_EQ(answers(path("pc.json"), sampleCatalogue), expected.replace("Jördis", "user"));
    EXPECT_FALSE(tells("pc", "Jördis"));
}

TEST_F(RecordTest, ARecordingOfARecordingIsTheSame) {
    ASSERT_EQ(record(samplePc, "1", sampleCatalogue).exitStatus, 0);
    ASSERT_EQ(record(path("1.json"), "2", sampleCatalogue).exitStatus, 0);
    EXPECT_EQ(contents("1"), contents("2"));
}

TEST_F(RecordTest, GamesThatNobodyKnewWhileRecordingAreFound) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", program.file("none.json", noGames), {"--keep-names"});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QString expected = answers(pc.folder(), pc.catalogue());
    EXPECT_EQ(expected.count("\"found\": true"), FullPc::games) << expected.toStdString();
    EXPECT_EQ(answers(path("pc.json"), pc.catalogue()), expected);
}

TEST_F(RecordTest, NothingIsTakenThatNoFinderReads) {
    const FullPc pc(program);
    for (const QStringList& options : {QStringList{}, QStringList{"--keep-names"}}) {
        const QString name = QString("pc%1").arg(options.size());
        ASSERT_EQ(record(pc.folder(), name, pc.catalogue(), options).exitStatus, 0);
        EXPECT_FALSE(tells(name, FullPc::secret)) << contents(name).toStdString();
    }
}

TEST_F(RecordTest, TheUserAndTheMachineAreNamedNowhere) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", pc.catalogue());
    ASSERT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.output.contains("\"Anneliese Ö\" is now \"user-2\", \"KAEFER-PC\" is now \"pc\""))
        << run.output.toStdString();
    for (const char* const name : {"Anneliese", "ANNELI~1", "KAEFER"}) {
        EXPECT_FALSE(tells("pc", name)) << name << contents("pc").toStdString();
    }
    QString expected = answers(pc.folder(), pc.catalogue());
    expected.replace("Anneliese Ö", "user-2").replace("ANNELI~1", "user-2").replace("KAEFER-PC", "pc");
    EXPECT_EQ(answers(path("pc.json"), pc.catalogue()), expected);
}

TEST_F(RecordTest, TellsWhatItTookAndHowToReplayIt) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", pc.catalogue(), {"--keep-names"});
    EXPECT_EQ(run.output, "Recorded into " + path("pc.json") + ":\n" + FullPc::summary + "  names           kept\n" +
                              "Replay it on Linux with: ./run --pc " + path("pc.json") + '\n');
}

TEST_F(RecordTest, TellsAFolderWithBlanksAsAShellWantsIt) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "Anna's PC", pc.catalogue());
    EXPECT_TRUE(run.output.endsWith("./run --pc '" + path("Anna'\\''s PC.json") + "'\n")) << run.output.toStdString();
}

TEST_F(RecordTest, ANameThatIsAWordOfPlacesStaysElsewhereAndIsTold) {
    program.file("pc/pc.json", R"({"environment": {"USERPROFILE": "C:\\Users\\Games"}})");
    program.file("pc/drives/C/Users/Games/G/g.exe", "");
    program.file("pc/drives/C/Games/H/h.exe", "");
    const QString catalogue = program.file("games.json", R"({"games": [{"name": "G", "finders": [
        {"type": "folder", "folder": "C:\\Users\\Games\\G", "executables": ["g.exe"]},
        {"type": "folder", "folder": "C:\\Games\\H", "executables": ["h.exe"]}]}]})");
    const FindRun run = record(path("pc"), "new", catalogue);
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_TRUE(run.errors.contains("\"Games\" is too short a name, or a word that finders look for"))
        << run.errors.toStdString();
    EXPECT_TRUE(run.output.contains("\"Games\" is now \"user\" (as a user's folder only)\n"))
        << run.output.toStdString();
    EXPECT_EQ(program.runBare({"unpack", path("new.json"), path("new")}).exitStatus, 0);
    EXPECT_TRUE(QFileInfo::exists(path("new/drives/C/Users/user/G/g.exe")));
    EXPECT_TRUE(QFileInfo::exists(path("new/drives/C/Games/H/h.exe")));
}

TEST_F(RecordTest, WhatIsOnNoDriveIsTold) {
    const QString game = program.file("outside/x.exe", "");
    const QString catalogue = program.file("games.json", QString(R"({"games": [{"name": "X", "finders": [
            {"type": "folder", "folder": "%1", "executables": ["x.exe"]}]}]})")
                                                             .arg(path("outside"))
                                                             .toUtf8());
    const FindRun run = record(samplePc, "pc", catalogue);
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors.count("not recorded: "), 2) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains("luruludri-find: not recorded: " + game + '\n')) << run.errors.toStdString();
}

} // namespace
