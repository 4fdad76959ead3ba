#include "FindTest.h"

#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "platform/Folders.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonArray installed(const FindRun& list) {
    EXPECT_EQ(list.exitStatus, 0) << list.errors.toStdString();
    return QJsonDocument::fromJson(list.output.toUtf8())["installed"].toArray();
}

/// The entry of that name and list.
QJsonValue entry(const QJsonArray& list, const QString& name, const QString& title) {
    for (const QJsonValue one : list) {
        if (one["name"] == name && one["list"] == title) {
            return one;
        }
    }
    ADD_FAILURE() << name.toStdString() << " is not listed";
    return {};
}

/// The folder in which the game is found whose line is pasted into an empty catalogue.
QString folderOfPasted(const FindProgram& program, const QStringList& pc, const QString& line) {
    const QString catalogue = program.file("pasted.json", ("{\"games\": [\n" + line + "\n]}").toUtf8());
    const FindRun found = program.runBare(QStringList{"--json", catalogue} + pc);
    EXPECT_EQ(found.exitStatus, 0) << line.toStdString() << found.output.toStdString();
    return QJsonDocument::fromJson(found.output.toUtf8())["games"][0]["installFolder"].toString();
}

class ListCommand : public FindTest {
protected:
    /// What the program lists of the PC under test.
    FindRun list(const QStringList& arguments = {"list", "--json"}) {
        program.setVariable(Recordings::environmentVariable, qEnvironmentVariable(Recordings::environmentVariable));
        return program.runBare(arguments);
    }

    TestPc pc;
};

using ListOfARecording = RecordingFindTest;

TEST_F(ListOfARecording, WhatItProposesForTheSamplePcIsFoundWhenItIsPasted) {
    const QStringList pc = {"--pc", LURULUDRI_SAMPLES "/pc"};
    const QJsonArray games = installed(program.runBare(QStringList{"list", "--json"} + pc));
    const QStringList lines = program.runBare(QStringList{"list"} + pc).output.split("\n");
    int pasted = 0;
    for (const QString& line : lines) {
        if (line.startsWith("    {\"name\": ")) {
            while (games[pasted]["finders"].toArray().isEmpty()) {
                ++pasted;
            }
            EXPECT_EQ(folderOfPasted(program, pc, line), games[pasted]["folder"].toString()) << line.toStdString();
            const QJsonObject proposed = QJsonDocument::fromJson(line.toUtf8()).object();
            EXPECT_EQ(proposed["finders"], games[pasted]["finders"]) << line.toStdString();
            EXPECT_EQ(proposed["name"], games[pasted]["name"]);
            ++pasted;
        }
    }
    EXPECT_EQ(lines.value(lines.size() - 2), "21 installed, 18 of them with a line for a catalogue");
    EXPECT_EQ(lines.filter("    {\"name\": ").size(), 18);
}

TEST_F(ListOfARecording, TellsAllListsOfTheSamplePc) {
    const QJsonArray games = installed(program.runBare({"list", "--json", "--pc", LURULUDRI_SAMPLES "/pc"}));
    EXPECT_EQ(entry(games, "Orbitkurier", "Steam")["folder"].toString(),
              "D:/SteamLibrary/steamapps/common/Orbitkurier");
    EXPECT_EQ(entry(games, "Sturmvogel 2 (Version 2.1)", "Uninstall registry")["folder"].toString(),
              "D:/Spiele/Sturmvogel 2");
    EXPECT_EQ(entry(games, "競走クラブ", "Start menu")["finders"][0]["executables"][0].toString(), "KeisoClub.exe");
    EXPECT_EQ(entry(games, "Nebelpflug", "Epic launcher")["finders"][0]["type"].toString(), "epicStore");
    EXPECT_EQ(entry(games, "federlicht-kolibri-canyon", "Oculus")["finders"][0]["softwareFolder"].toString(),
              "federlicht-kolibri-canyon");
    EXPECT_EQ(entry(games, "Zeppelinpost", "Games Explorer")["folder"].toString(), "D:\\Spiele\\Zeppelinpost");
    EXPECT_EQ(entry(games, "Halmstaub.Gletscherspalte_8t4qz1rk6yw2e", "App packages")["finders"],
              (QJsonArray{QJsonObject{{"type", "universalApp"},
                                      {"packageFamily", "Halmstaub.Gletscherspalte_8t4qz1rk6yw2e"}}}));
    EXPECT_EQ(entry(games, "federlicht-kolibri-canyon_assets", "Oculus")["finders"], QJsonArray());
}

TEST_F(ListOfARecording, OfARecordingASteamAppIsProposedWhenItsFolderCanBeTold) {
    ASSERT_EQ(program.runBare({"record", "sent", "--pc", LURULUDRI_SAMPLES "/pc"}).exitStatus, 0);
    const QStringList pc = {"--pc", program.folder() + "/sent.json"};
    const QJsonArray games = installed(program.runBare(QStringList{"list", "--json"} + pc));
    EXPECT_EQ(entry(games, "Orbitkurier", "Steam")["folder"].toString(), "D:/SteamLibrary/steamapps/common/Orbitkurier")
        << "the only folder of the only app";
    EXPECT_EQ(entry(games, "Fjordflug VR", "Steam")["finders"][0]["appId"].toString(), "7310040")
        << "by the Uninstall registry";
    EXPECT_EQ(entry(games, "250820", "Steam")["finders"], QJsonArray()) << "its folder may be another app's";
}

TEST_F(ListCommand, AProgramOfTheUninstallRegistryIsListedWithWhatStartsIt) {
    addProgram(pc, {"Käfer_is1", "Käferrennen", "D:\\Spiele\\Käfer", "D:\\Spiele\\Käfer\\unins000.exe",
                    Platform::RootKey::LocalMachine, View::view64});
    pc.file("D:\\Spiele\\Käfer\\unins000.exe");
    pc.file("D:\\Spiele\\Käfer\\bin\\Kaeferrennen.exe");
    pc.file("D:\\Spiele\\Käfer\\bin\\käferrennen.exe");
    pc.file("D:\\Spiele\\Käfer\\crashreport.exe");
    const QJsonValue game = entry(installed(list()), "Käferrennen", "Uninstall registry");
    EXPECT_EQ(game["folder"].toString(), "D:\\Spiele\\Käfer");
    EXPECT_EQ(game["finders"][0]["executables"].toArray(),
              (QJsonArray{"bin\\käferrennen.exe", "bin\\Kaeferrennen.exe"}));
    const QString line = list({"list"}).output.section("    {", 1).section("\n", 0, 0);
    EXPECT_EQ(folderOfPasted(program, {}, "{" + line), "D:\\Spiele\\Käfer");
}

TEST_F(ListCommand, ASteamAppIsListedWhereOnlyTheStartMenuKnowsSteam) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.shortcut("C:\\Menu\\Steam.lnk", "D:\\Steam\\steam.exe");
    pc.file("D:\\Steam\\steam.exe");
    pc.file("D:\\Steam\\steamapps\\appmanifest_7.acf");
    pc.file("D:\\Steam\\steamapps\\common\\Wal\\wal.exe");
    const QJsonValue game = entry(installed(list()), "Wal", "Steam");
    EXPECT_EQ(game["finders"][0]["appId"].toString(), "7");
}

TEST_F(ListCommand, WhatHasNoExecutableIsListedWithoutALine) {
    addProgram(pc, {"Wal", "Wal", "D:\\Wal", {}, Platform::RootKey::LocalMachine, View::view64});
    pc.folder("D:\\Wal");
    const QString text = list({"list"}).output;
    EXPECT_TRUE(text.contains("Wal\n    Uninstall registry: D:\\Wal\n    no finder was found for it\n"))
        << text.toStdString();
}

TEST_F(ListCommand, AFolderThatTheUserChoseIsListed) {
    if (Find::isPcItself()) {
        GTEST_SKIP() << "the user's settings are the real ones";
    }
    pc.userChoice("wal", "D:\\Wal");
    pc.file("D:\\Wal\\wal.exe");
    const QJsonValue game = entry(installed(list()), "wal", "User's choices");
    EXPECT_EQ(game["folder"].toString(), "D:\\Wal");
    EXPECT_EQ(game["finders"][0]["key"].toString(), "wal");
}

TEST_F(ListCommand, APlugInThatTellsNothingIsRefused) {
    const FindRun list = program.run({"list"});
    EXPECT_EQ(list.exitStatus, 2);
    EXPECT_EQ(list.errors, "luruludri-find: the plug-in did not tell what it read\n");
}

} // namespace
