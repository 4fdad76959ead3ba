#include "FindTest.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace {

/// What the real plug-in says of the samples. Its log goes into the folder of `program`.
FindRun runSamples(const FindProgram& program, const QStringList& arguments) {
    return program.runBare(QStringList{"--pc", LURULUDRI_SAMPLES "/pc", LURULUDRI_SAMPLES "/catalogue.json"} +
                           arguments);
}

/// The folder in which each game was found, by its name; empty when it was not.
QMap<QString, QString> foldersOf(const FindRun& run) {
    QMap<QString, QString> folders;
    const QJsonObject root = QJsonDocument::fromJson(run.output.toUtf8()).object();
    for (const QJsonValue game : root["games"].toArray()) {
        folders.insert(game["name"].toString(), game["installFolder"].toString());
    }
    return folders;
}

using Samples = FindTest;

TEST_F(Samples, AreReadWithoutFaultsAndShowGamesFoundAndNotFound) {
    const FindRun run = runSamples(program, {"--json"});
    EXPECT_EQ(run.exitStatus, 1) << run.errors.toStdString();
    const QMap<QString, QString> folders = foldersOf(run);
    EXPECT_EQ(folders.value("Käferrennen"), "D:\\Spiele\\Käferrennen");
    EXPECT_EQ(folders.value("Lantern Harbour"), "C:\\Games\\Lantern Harbour");
    EXPECT_EQ(folders.value("Nordlicht Tactics", "not asked"), "");
}

TEST_F(Samples, HaveGamesOfSteamTheUninstallRegistryAndTheStartMenu) {
    const FindRun run = runSamples(program, {"--json"});
    const QMap<QString, QString> folders = foldersOf(run);
    EXPECT_EQ(folders.value("Fjordflug VR"), "C:\\Program Files (x86)\\Steam\\steamapps\\common\\Fjordflug VR");
    EXPECT_EQ(folders.value("Orbitkurier"), "D:/SteamLibrary/steamapps/common/Orbitkurier");
    EXPECT_EQ(folders.value("Tiefseelicht", "not asked"), "") << "its library is gone";
    EXPECT_EQ(folders.value("Kartonrakete"), "C:\\Users\\Jördis\\AppData\\Local\\Programs\\Kartonrakete");
    EXPECT_EQ(folders.value("Marmor & Messing"), "C:\\Program Files (x86)\\Marmor & Messing");
    EXPECT_EQ(folders.value("Sturmvogel 2"), "D:/Spiele/Sturmvogel 2");
    EXPECT_EQ(folders.value("Wörterlabyrinth"), "C:/Games/Wörterlabyrinth");
    EXPECT_EQ(folders.value("競走クラブ"), "D:/Spiele/競走クラブ");
    const QJsonObject runtimes = QJsonDocument::fromJson(run.output.toUtf8()).object()["runtimes"].toObject();
    EXPECT_EQ(runtimes["steamExecutablePath"].toString(), "C:\\Program Files (x86)\\Steam\\steam.exe");
    EXPECT_EQ(runtimes["steamVrFolder"].toString(), "C:\\Program Files (x86)\\Steam\\steamapps\\common\\SteamVR");
}

TEST_F(Samples, HaveGamesOfTheStoresThePackagesAndTheGamesExplorer) {
    const FindRun run = runSamples(program, {"--json"});
    const QMap<QString, QString> folders = foldersOf(run);
    EXPECT_EQ(folders.value("Nebelpflug"), "D:\\Epic Games\\Nebelpflug");
    EXPECT_EQ(folders.value("Kolibri Canyon"), "D:/Oculus Apps/Software/federlicht-kolibri-canyon");
    EXPECT_EQ(folders.value("Gletscherspalte"), "Halmstaub.Gletscherspalte_2.3.11.0_x64__8t4qz1rk6yw2e");
    EXPECT_EQ(folders.value("Burgfried 1412"), "C:/Games/Burgfried 1412");
    EXPECT_EQ(folders.value("Zeppelinpost"), "D:\\Spiele\\Zeppelinpost");
    EXPECT_EQ(folders.value("Moosgarten", "not asked"), "") << "the user has not chosen its folder";
}

TEST_F(Samples, HaveAllRuntimes) {
    const FindRun run = program.runBare({"--pc", LURULUDRI_SAMPLES "/pc", "--json", "runtimes"});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QJsonObject runtimes = QJsonDocument::fromJson(run.output.toUtf8()).object()["runtimes"].toObject();
    EXPECT_EQ(runtimes["oculusRuntimeFolder"].toString(), "C:\\Program Files\\Oculus\\/Support/oculus-runtime");
    EXPECT_EQ(runtimes["oculusLibraryFolders"].toArray(), QJsonArray{"D:/Oculus Apps/Manifests"});
    EXPECT_EQ(runtimes["varjoRuntimeFolder"].toString(), "C:\\Program Files\\Varjo\\");
    EXPECT_EQ(runtimes["openXrActiveRuntime"].toString(), "C:\\Program Files\\Varjo\\varjo-openxr\\VarjoOpenXR.json");
    EXPECT_EQ(runtimes["lumavexStandaloneLocation"].toString(), "C:\\Program Files\\Lumavex\\Standalone");
}

TEST_F(Samples, HaveAGameThatTheUserCanLocate) {
    const QString folder = "D:\\Eigene Spiele\\Moosgarten";
    const QJsonObject description{{"userLocations", QJsonObject{{"moosgarten", folder}}}};
    const QString pc = QFileInfo(program.file("pc/pc.json", QJsonDocument(description).toJson())).path();
    ASSERT_TRUE(QFile::link(LURULUDRI_SAMPLES "/pc/drives", pc + "/drives"));
    const FindRun run = program.runBare({"--pc", pc, "--json", LURULUDRI_SAMPLES "/catalogue.json"});
    EXPECT_EQ(foldersOf(run).value("Moosgarten"), folder) << run.errors.toStdString();
}

TEST_F(Samples, HaveAGameWithTwoExecutables) {
    const FindRun run = runSamples(program, {"--json", "--game", "Lantern Harbour"});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QJsonObject root = QJsonDocument::fromJson(run.output.toUtf8()).object();
    const QJsonArray expected = {"C:\\Games\\Lantern Harbour\\game\\LanternHarbour.exe",
                                 "C:\\Games\\Lantern Harbour\\editor\\HarbourEditor.exe"};
    EXPECT_EQ(root["games"][0]["executablePaths"].toArray(), expected);
}

} // namespace
