#include "recorded/FullPc.h"
#include "recorded/ReplayTest.h"

#include "recordings/PcFile.h"
#include "recordings/Recording.h"
#include "recordings/ShellLink.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr const char* noGames = R"({"games": []})";

class RecordTest : public ReplayTest {
protected:
    bool tells(const QString& name, const QString& text) const {
        return contents(name + ".json").contains(text, Qt::CaseInsensitive);
    }

    /// Records `pc` as the file of that name in the test's folder.
    FindRun record(const QString& pc, const QString& name, const QString& catalogue,
                   const QStringList& options = {}) const {
        return program.runBare(QStringList{"--pc", pc, "record", path(name), catalogue} + options);
    }
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
    EXPECT_EQ(contents("1.json"), contents("2.json"));
}

TEST_F(RecordTest, GamesThatNobodyKnewWhileRecordingAreFound) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", program.file("none.json", noGames), {"--keep-names"});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QString expected = answers(pc.folder(), pc.catalogue());
    EXPECT_EQ(expected.count("\"found\": true"), FullPc::games) << expected.toStdString();
    EXPECT_EQ(answers(path("pc.json"), pc.catalogue()), expected);
}

TEST_F(RecordTest, SteamGamesThatNobodyKnewAreFoundWhereOnlyTheStartMenuKnowsSteam) {
    program.file("pc/pc.json", R"({"shellFolders": {"startMenu": "C:\\Menu"}})");
    program.file("pc/drives/C/Menu/Steam.lnk", Recordings::renderShellLink("D:\\Steam\\steam.exe"));
    program.file("pc/drives/D/Steam/steam.exe", "");
    program.file("pc/drives/D/Steam/steamapps/appmanifest_7.acf", "");
    program.file("pc/drives/D/Steam/steamapps/common/Wal/wal.exe", "");
    const QString catalogue = program.file("games.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "steam", "appId": "7", "installFolderName": "Wal", "executables": ["wal.exe"]}]}]})");
    ASSERT_EQ(record(path("pc"), "new", program.file("none.json", noGames)).exitStatus, 0);
    const QString expected = answers(path("pc"), catalogue);
    EXPECT_TRUE(expected.contains("\"found\": true"));
    EXPECT_EQ(answers(path("new.json"), catalogue), expected);
}

TEST_F(RecordTest, ASteamGameThatNobodyKnewIsFoundWhereBlanksFollowItsFolder) {
    program.file("pc/registry/all.reg", R"(Windows Registry Editor Version 5.00

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Steam App 7]
"DisplayName"="Wal"
"InstallLocation"="D:\\Wal  "
"UninstallString"="steam://uninstall/7"
)");
    program.file("pc/drives/D/Wal/bin/wal.exe", "");
    const QString catalogue = program.file("games.json", R"({"games": [{"name": "Wal", "finders": [
        {"type": "steam", "appId": "7", "installFolderName": "", "executables": ["bin\\wal.exe"]}]}]})");
    ASSERT_EQ(record(path("pc"), "new", program.file("none.json", noGames)).exitStatus, 0);
    const QString expected = answers(path("pc"), catalogue);
    EXPECT_TRUE(expected.contains("\"found\": true"));
    EXPECT_EQ(answers(path("new.json"), catalogue), expected);
}

TEST_F(RecordTest, NothingIsTakenThatNoFinderReads) {
    const FullPc pc(program);
    for (const QStringList& options : {QStringList{}, QStringList{"--keep-names"}}) {
        const QString name = QString("pc%1").arg(options.size());
        ASSERT_EQ(record(pc.folder(), name, pc.catalogue(), options).exitStatus, 0);
        EXPECT_FALSE(tells(name, FullPc::secret)) << contents(name + ".json").toStdString();
    }
}

TEST_F(RecordTest, TheUserAndTheMachineAreNamedNowhere) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", pc.catalogue());
    ASSERT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.output.contains("\"Anneliese Ö\" is now \"user-2\", \"KAEFER-PC\" is now \"pc\""))
        << run.output.toStdString();
    for (const char* const name : {"Anneliese", "ANNELI~1", "KAEFER"}) {
        EXPECT_FALSE(tells("pc", name)) << name << contents("pc.json").toStdString();
    }
    QString expected = answers(pc.folder(), pc.catalogue());
    expected.replace("Anneliese Ö", "user-2").replace("ANNELI~1", "user-2").replace("KAEFER-PC", "pc");
    EXPECT_EQ(answers(path("pc.json"), pc.catalogue()), expected);
}

TEST_F(RecordTest, TellsWhatItTookAndHowToReplayIt) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "pc", pc.catalogue(), {"--keep-names"});
    EXPECT_EQ(run.output, "Recorded into " + path("pc.json") + ":\n" + FullPc::summary + "  names           kept\n" +
                              "Replay it on Linux with: luruludri-find --pc " + path("pc.json") + '\n');
}

TEST_F(RecordTest, TellsAFolderWithBlanksAsAShellWantsIt) {
    const FullPc pc(program);
    const FindRun run = record(pc.folder(), "Anna's PC", pc.catalogue());
    EXPECT_TRUE(run.output.endsWith(": luruludri-find --pc '" + path("Anna'\\''s PC.json") + "'\n"))
        << run.output.toStdString();
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
    const QString catalogue = program.file("games.json", R"({"games": [{"name": "X", "finders": [
        {"type": "folder", "folder": "\\Games\\Burgfried 1412", "executables": ["Burgfried.exe"]}]}]})");
    const FindRun run = record(samplePc, "pc", catalogue);
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors.count("not recorded: "), 2) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains("luruludri-find: not recorded: \\Games\\Burgfried 1412\\Burgfried.exe\n"))
        << run.errors.toStdString();
}

/// A PC with a secret, which has the word GEHEIM in it, in every place that a recording could take it from.
void plantSecrets(const FindProgram& program) {
    const QString pc = "secret/";
    program.file(pc + "registry/x.reg", R"(Windows Registry Editor Version 5.00

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Token]
"DisplayName"="Aal"
"InstallLocation"="D:\\Aal"
"UninstallString"="\"D:\\Aal\\u.exe\" --token=GEHEIM anna@GEHEIM.example"
"RegOwner"="GEHEIM"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Plain]
"DisplayName"="Barsch"
"UninstallString"="D:\\Barsch\\u.exe --key=GEHEIM"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Serial]
"DisplayName"="Butt"
"UninstallString"="MsiExec.exe /X{GEHEIM} PIDKEY=GEHEIM"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Types]
"DisplayName"=hex(1):44,00,00,00,47,00,45,00,48,00,45,00,49,00,4d,00,00,00
"InstallLocation"=hex(2):47,00,45,00,48,00,45,00,49,00,4d,00,00,00
"UninstallString"=hex:47,45,48,45,49,4d

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Other user]
"DisplayName"="Dorsch"
"InstallLocation"="C:\\Users\\GEHEIM-berta\\Dorsch"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\GEHEIM-anna_is1]
"DisplayName"="Hecht"
"InstallLocation"="D:\\Spiele auf GEHEIM-PC\\Hecht"

[HKEY_CLASSES_ROOT\steam\Shell\Open\Command]
@="\"D:\\Steam\\steam.exe\" -- \"%1\""

[HKEY_CURRENT_USER\Software\GEHEIM]
)");
    program.file(pc + "pc.json", R"({"shellFolders": {"commonAppData": "C:\\ProgramData", "personal": "C:\\GEHEIM",
        "startMenu": "C:\\Users\\GEHEIM-anna\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu"},
        "environment": {"TOKEN": "GEHEIM", "COMPUTERNAME": "GEHEIM-PC"},
        "volumes": {"E": "\\\\?\\Volume{GEHEIM}\\"}, "packages": [{"family": "GEHEIM_a", "fullName": "GEHEIM_1_a"}],
        "host": {"executable": "C:\\GEHEIM\\host.exe", "version": "1.2.3.4"}, "system": ["D:\\GEHEIM.txt"]})");
    const QString drives = pc + "drives/";
    program.file(drives + "C/ProgramData/Epic/EpicGamesLauncher/Data/Manifests/1.item",
                 R"({"AppName": "E", "DisplayName": "Muschel", "InstallLocation": "D:\\Muschel", "AccountId": "GEHEIM",
                     "Auth": {"Token": "GEHEIM"}, "OwnershipToken": "GEHEIM", "InstallTags": ["GEHEIM"]})");
    program.file(drives + "C/ProgramData/Epic/EpicGamesLauncher/Data/Manifests/2.item", "no JSON: GEHEIM");
    program.file(drives + "D/Steam/steamapps/libraryfolders.vdf",
                 "\"0\"\n{\n\"path\" \"D:\\\\Steam\"\n\"label\" \"GEHEIM\"\n\"contentid\" \"GEHEIM\"\n}\n");
    program.file(drives + "D/Steam/steamapps/appmanifest_7.acf", "\"LastOwner\" \"GEHEIM\"");
    program.file(drives + "C/Users/GEHEIM-anna/AppData/Roaming/Microsoft/Windows/Start Menu/GEHEIM-anna/Aal.lnk",
                 Recordings::renderShellLink("C:\\Users\\GEHEIM-anna\\aal.exe") + "--token=GEHEIM");
    for (const char* const file : {"D/Aal/aal.exe", "D/Aal/GEHEIM.txt", "D/Muschel/m.exe", "D/GEHEIM.txt",
                                   "D/Spiele auf GEHEIM-PC/Hecht/h.exe", "C/Users/GEHEIM-berta/Dorsch/d.exe"}) {
        program.file(drives + file, "GEHEIM");
    }
}

TEST_F(RecordTest, SecretsOfEveryKindStayWhereTheyAre) {
    plantSecrets(program);
    const QString catalogue = program.file("games.json", R"({"games": [
        {"name": "Aal", "finders": [{"type": "uninstall", "displayName": "Aal", "executables": ["aal.exe"]}]},
        {"name": "Dorsch", "finders": [{"type": "uninstall", "displayName": "Dorsch", "executables": ["d.exe"]}]},
        {"name": "Hecht", "finders": [{"type": "uninstall", "displayName": "Hecht", "executables": ["h.exe"]}]},
        {"name": "Muschel", "finders": [{"type": "epicStore", "name": "Muschel", "executables": ["m.exe"]}]}]})");
    const FindRun run = record(path("secret"), "pc", catalogue);
    ASSERT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    EXPECT_FALSE(tells("pc", "GEHEIM")) << contents("pc.json").toStdString();
    EXPECT_EQ(answers(path("pc.json"), catalogue).count("\"found\": true"), 4);

    ASSERT_EQ(program.runBare({"--pc", path("secret"), "report", path("page.html"), catalogue}).exitStatus, 0);
    QFile page(path("page.html"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_FALSE(page.readAll().contains("GEHEIM"));
}

/// The answers with one word for the name and for what stands in its place.
QString withoutNames(QString answers, const QString& name) {
    const QRegularExpression names("\\b(" + name + "|user(-[0-9]+)?|pc(-[0-9]+)?)\\b",
                                   QRegularExpression::CaseInsensitiveOption);
    return answers.replace(names, "*");
}

TEST_F(RecordTest, AnswersAreTheSameWhateverUserAndMachineAreCalled) {
    const QString sample = QString::fromUtf8(Recordings::renderPcFile(Recordings::readRecording(samplePc.toUtf8()).pc));
    int found = 0;
    for (const QString name :
         {"STEAMVR", "CACHE",    "Games", "Program", "7",         "Lantern", "Users",   "steamapps", "exe",  "common",
          "Data",    "Software", "path",  "Marmor",  "Manifests", "lnk",     "Windows", "bin",       "user", "PC"}) {
        QString pc = sample;
        pc.replace("Jördis", name)
            .replace("\"environment\": {", "\"environment\": {\"COMPUTERNAME\": \"" + name + "\",");
        const QString file = program.file(name + "-named.json", pc.toUtf8());
        ASSERT_EQ(record(file, "of " + name, sampleCatalogue).exitStatus, 0) << name.toStdString();
        const QString expected = answers(file, sampleCatalogue);
        EXPECT_EQ(withoutNames(answers(path("of " + name + ".json"), sampleCatalogue), name),
                  withoutNames(expected, name))
            << name.toStdString();
        found += expected.count("\"found\": true");
    }
    EXPECT_GE(found, 20 * 14) << "each finds games";
}

} // namespace
