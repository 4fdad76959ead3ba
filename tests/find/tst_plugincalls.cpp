#include "FindTest.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// A catalogue with one game that has these finders.
QByteArray oneGame(const QByteArray& finders) {
    return R"({"games": [{"name": "Käferrennen", "finders": [)" + finders + "]}]}";
}

/// The one call that this finder's entry leads to.
QString callOf(const QByteArray& finder) {
    const FindProgram program;
    const FindRun run = program.run({program.file("games.json", oneGame(finder))});
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.exitStatus, 1);
    return program.fakeLog().value(1);
}

using PluginCalls = FindTest;

TEST_F(PluginCalls, ArgumentsReachTheirSlots) {
    EXPECT_EQ(callOf(R"({"type": "uninstall", "displayName": "Name", "executables": ["a", "b"], "matchMode": 7})"),
              "uninstall(Name|a,b|7)");
    EXPECT_EQ(callOf(R"({"type": "gameForWindow", "title": "Title", "executables": ["a", "b"]})"),
              "gameForWindow(Title|a,b)");
    EXPECT_EQ(callOf(R"({"type": "steam", "appId": "42", "installFolderName": "Folder", "executables": ["a", "b"]})"),
              "steam(42|Folder|a,b)");
    EXPECT_EQ(callOf(R"({"type": "startMenu", "name": "Name", "executables": ["a", "b"], "matchMode": 1})"),
              "startMenu(Name|a,b|1)");
    EXPECT_EQ(callOf(R"({"type": "folder", "folder": "D:\\Spiele\\Käfer", "executables": ["a", "b"]})"),
              "folder(D:\\Spiele\\Käfer|a,b)");
    EXPECT_EQ(callOf(R"({"type": "oculusStore", "appId": "4", "executables": ["a", "b"], "softwareFolder": "F"})"),
              "oculusStore(4|a,b|F)");
    EXPECT_EQ(callOf(R"({"type": "epicStore", "name": "Name", "executables": ["a", "b"], "matchMode": -1})"),
              "epicStore(Name|a,b|-1)");
    EXPECT_EQ(callOf(R"({"type": "universalApp", "packageFamily": "Family_1"})"), "universalApp(Family_1)");
    EXPECT_EQ(callOf(R"({"type": "userProvidedLocation", "key": "Key", "executables": []})"),
              "userProvidedLocation(Key|)");
}

TEST_F(PluginCalls, AMatchModeThatIsLeftOutIsZero) {
    EXPECT_EQ(callOf(R"({"type": "epicStore", "name": "Name", "executables": []})"), "epicStore(Name||0)");
}

TEST_F(PluginCalls, FindersGoIntoOneMultiFinderInOrder) {
    program.run({program.file("games.json", oneGame(R"(
        {"type": "universalApp", "packageFamily": "1"}, {"type": "steam", "appId": "2", "installFolderName": "",
         "executables": []}, {"type": "folder", "folder": "3", "executables": []})"))});
    EXPECT_EQ(program.fakeLog().mid(0, 5),
              (QStringList{"Create", "universalApp(1)", "steam(2||)", "folder(3|)", "multi(11100000000)"}));
}

TEST_F(PluginCalls, ElevenFindersFillAllPlaces) {
    const QByteArray finder = R"({"type": "universalApp", "packageFamily": "x"})";
    program.run({program.file("games.json", oneGame((finder + ',').repeated(10) + finder))});
    EXPECT_EQ(program.fakeLog().value(12), "multi(11111111111)");
}

TEST_F(PluginCalls, NestedMultiFindersAreMadeFromTheInside) {
    const FindRun run = program.run({program.file("games.json", oneGame(R"({"type": "multi", "finders": [
        {"type": "universalApp", "packageFamily": "1"}, {"type": "universalApp", "packageFamily": "installed"}]})"))});
    EXPECT_EQ(program.fakeLog().mid(1, 4),
              (QStringList{"universalApp(1)", "universalApp(installed)", "multi(11000000000)", "multi(10000000000)"}));
    EXPECT_EQ(run.exitStatus, 0);
}

TEST_F(PluginCalls, FindersGoBeforeTheFactoryAndTheFactoryBeforeTheLibrary) {
    program.run({program.file("games.json", oneGame(R"({"type": "universalApp", "packageFamily": "installed"})"))});
    EXPECT_EQ(program.fakeLog(), (QStringList{"Create", "universalApp(installed)", "multi(10000000000)", "~multi",
                                              "~universalApp", "~Create", "unloaded"}));
}

TEST_F(PluginCalls, FindersThatThePluginDoesNotMakeAreLeftOut) {
    program.setFakeMode("no finders");
    const QString catalogue = program.file("games.json", oneGame(R"({"type": "universalApp", "packageFamily": "1"})"));
    EXPECT_EQ(program.run({catalogue}).exitStatus, 1);
    EXPECT_EQ(program.fakeLog().value(1), "multi(00000000000)");

    program.setFakeMode("no multi finder");
    EXPECT_EQ(program.run({catalogue}).exitStatus, 1);
}

TEST_F(PluginCalls, AnswersAreShownUnderTheirNames) {
    const QString catalogue = program.file("games.json", R"({"games": [
        {"name": "Käferrennen", "finders": [{"type": "universalApp", "packageFamily": "installed"}]},
        {"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "x"}]}]})");
    const FindRun run = program.run({catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, "Game         Found  Folder           Started by\n"
                          "Käferrennen  yes    D:\\Spiele\\Käfer  steam://launch/42/VR\n"
                          "Wal          no\n"
                          "\n"
                          "Runtime              Where\n"
                          "Steam client         slot 13\n"
                          "Steam configuration  slot 14\n"
                          "SteamVR              slot 18\n"
                          "Oculus runtime       slot 12\n"
                          "Oculus libraries     slot 11 first\n"
                          "                     slot 11 second\n"
                          "Varjo                slot 15\n"
                          "OpenXR               slot 16\n"
                          "Lumavex standalone   slot 17\n"
                          "\n"
                          "1 of 2 found\n");
}

TEST_F(PluginCalls, AnswersInJsonAreUnderTheirOperations) {
    const QString catalogue = program.file("games.json", R"({"games": [
        {"name": "Käferrennen", "finders": [{"type": "universalApp", "packageFamily": "installed"}]},
        {"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "x"}]}]})");
    const FindRun run = program.run({"--json", catalogue});
    EXPECT_EQ(run.exitStatus, 1);
    const QJsonDocument expected = QJsonDocument::fromJson(R"({
        "version": 1,
        "errors": [],
        "games": [
            {"name": "Käferrennen", "found": true, "installFolder": "D:\\Spiele\\Käfer",
             "launchCommand": "steam://launch/42/VR", "executablePath": "D:\\Spiele\\Käfer\\kaefer.exe",
             "executablePaths": ["D:\\Spiele\\Käfer\\kaefer.exe", "D:\\Spiele\\b.exe"]},
            {"name": "Wal", "found": false, "installFolder": "", "launchCommand": "", "executablePath": "",
             "executablePaths": []}],
        "runtimes": {"steamExecutablePath": "slot 13", "steamConfigFolder": "slot 14", "steamVrFolder": "slot 18",
                     "oculusRuntimeFolder": "slot 12", "oculusLibraryFolders": ["slot 11 first", "slot 11 second"],
                     "varjoRuntimeFolder": "slot 15", "openXrActiveRuntime": "slot 16",
                     "lumavexStandaloneLocation": "slot 17"}})");
    ASSERT_FALSE(expected.isNull());
    EXPECT_EQ(run.output, QString::fromUtf8(expected.toJson()));
}

TEST_F(PluginCalls, TheRuntimesAloneNeedNoCatalogue) {
    const FindRun run = program.run({"runtimes"});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_TRUE(run.output.startsWith("Runtime              Where\nSteam client         slot 13\n"));
    EXPECT_EQ(program.fakeLog(), (QStringList{"Create", "~Create", "unloaded"}));

    const QJsonObject root = QJsonDocument::fromJson(program.run({"runtimes", "--json"}).output.toUtf8()).object();
    EXPECT_EQ(root["games"].toArray().size(), 0);
    EXPECT_EQ(root["runtimes"]["varjoRuntimeFolder"].toString(), "slot 15");
}

TEST_F(PluginCalls, WhatIsNotThereIsNotFound) {
    program.setFakeMode("no runtimes");
    const QString catalogue = program.file("games.json", R"({"games": []})");
    const FindRun run = program.run({catalogue});
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.output.count("not found\n"), 8);

    const QJsonObject root = QJsonDocument::fromJson(program.run({"--json", catalogue}).output.toUtf8()).object();
    EXPECT_EQ(root["games"].toArray().size(), 0);
    EXPECT_EQ(root["runtimes"]["steamExecutablePath"].toString("absent"), "");
    EXPECT_TRUE(root["runtimes"]["oculusLibraryFolders"].isArray());
}

} // namespace
