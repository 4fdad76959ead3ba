#include "FindProgram.h"

#include "common/QtPrinters.h"
#include "support/Recording.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace {

/// What the real plug-in says of the samples. Its log goes into the folder of `program`.
FindRun runSamples(FindProgram& program, const QStringList& arguments) {
    program.setVariable("XDG_DATA_HOME", program.folder());
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

TEST(Samples, AreReadWithoutFaultsAndShowGamesFoundAndNotFound) {
    if (!Recording::problems(LURULUDRI_SAMPLES "/pc")) {
        GTEST_SKIP() << "no recordings here";
    }
    FindProgram program;
    const FindRun run = runSamples(program, {"--json"});
    EXPECT_EQ(run.exitStatus, 1) << run.errors.toStdString();
    const QMap<QString, QString> folders = foldersOf(run);
    EXPECT_EQ(folders.value("Käferrennen"), "D:\\Spiele\\Käferrennen");
    EXPECT_EQ(folders.value("Lantern Harbour"), "C:\\Games\\Lantern Harbour");
    EXPECT_EQ(folders.value("Nordlicht Tactics", "not asked"), "");
}

TEST(Samples, HaveGamesOfSteamTheUninstallRegistryAndTheStartMenu) {
    if (!Recording::problems(LURULUDRI_SAMPLES "/pc")) {
        GTEST_SKIP() << "no recordings here";
    }
    FindProgram program;
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

TEST(Samples, HaveAGameWithTwoExecutables) {
    if (!Recording::problems(LURULUDRI_SAMPLES "/pc")) {
        GTEST_SKIP() << "no recordings here";
    }
    FindProgram program;
    const FindRun run = runSamples(program, {"--json", "--game", "Lantern Harbour"});
    EXPECT_EQ(run.exitStatus, 0) << run.errors.toStdString();
    const QJsonObject root = QJsonDocument::fromJson(run.output.toUtf8()).object();
    const QJsonArray expected = {"C:\\Games\\Lantern Harbour\\game\\LanternHarbour.exe",
                                 "C:\\Games\\Lantern Harbour\\editor\\HarbourEditor.exe"};
    EXPECT_EQ(root["games"][0]["executablePaths"].toArray(), expected);
}

} // namespace
