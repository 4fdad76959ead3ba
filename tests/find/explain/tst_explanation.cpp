#include "Explained.h"
#include "common/EpicLauncher.h"
#include "common/Games.h"
#include "common/PcTest.h"
#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::Not;

const QString raceFolder = "D:\\Spiele\\Rennen";

using Explanation = PcTest;

TEST_F(Explanation, OfAFolderNamesWhatWasLookedForAndWhatIsMissing) {
    pc.folder(raceFolder);
    EXPECT_EQ(explained(R"({"type": "folder", "folder": "D:\\Spiele\\Rennen", "executables": ["a.exe", "b.exe"]})"),
              QStringList({"Käferrennen: not found",
                           R"(1. folder: folder "D:\Spiele\Rennen", executables ["a.exe", "b.exe"])",
                           "   D:\\Spiele\\Rennen: is there", "   D:\\Spiele\\Rennen\\a.exe: missing",
                           "   D:\\Spiele\\Rennen\\b.exe: missing",
                           "   * None of the executables is in D:\\Spiele\\Rennen.", "   => not found"}));
}

TEST_F(Explanation, OfAGameThatIsFoundEndsWithTheFinderThatFoundIt) {
    pc.file(raceFolder + "\\a.exe");
    EXPECT_EQ(explained(R"({"type": "folder", "folder": "D:\\Nichts", "executables": ["a.exe"]},
                           {"type": "folder", "folder": "D:\\Spiele\\Rennen", "executables": ["a.exe"]},
                           {"type": "folder", "folder": "D:\\Mehr", "executables": ["a.exe"]})"),
              QStringList({R"(Käferrennen: found in D:\Spiele\Rennen, started by D:\Spiele\Rennen\a.exe)",
                           R"(1. folder: folder "D:\Nichts", executables ["a.exe"])", "   D:\\Nichts: missing",
                           "   * The folder D:\\Nichts is missing.", "   => not found",
                           R"(2. folder: folder "D:\Spiele\Rennen", executables ["a.exe"])",
                           "   D:\\Spiele\\Rennen: is there", "   D:\\Spiele\\Rennen\\a.exe: is there",
                           "   log: Folder: D:/Spiele/Rennen/a.exe", "   => found",
                           R"(3. folder: folder "D:\Mehr", executables ["a.exe"])", "   => not asked"}));
}

TEST_F(Explanation, OfTheUninstallRegistryShowsTheValuesThatWereRead) {
    addProgram(pc, {"Rennen", "Käferrennen", "D:\\Alt", {}});
    const QStringList lines =
        explained(R"({"type": "uninstall", "displayName": "Käferrennen", "executables": ["a.exe"]})");
    EXPECT_THAT(lines, Contains("     registry key HKEY_LOCAL_MACHINE\\" + uninstallKeyPath + " (32-bit view)"));
    EXPECT_THAT(lines,
                Contains("     registry key HKEY_LOCAL_MACHINE\\" + uninstallKeyPath + "\\Rennen (32-bit view)"));
    EXPECT_THAT(lines, Contains(QString("         DisplayName = \"Käferrennen\"")));
    EXPECT_THAT(lines, Contains(QString("         InstallLocation = \"D:\\Alt\"")));
    EXPECT_THAT(lines, Contains(QString("         UninstallString: there is none")));
    EXPECT_THAT(lines, Contains(QString("   D:\\Alt\\a.exe: missing")));
    EXPECT_THAT(lines, Contains(QString("   * None of the executables is in D:\\Alt.")));
    EXPECT_THAT(lines, Contains("   * " + uninstallKeyPath + "\\Rennen names no uninstaller in the game's folder."));
}

TEST_F(Explanation, NamesWhatIsCalledAlikeWhenNothingHasTheName) {
    addProgram(pc, {"Rennen", "Käferrennen 2", "D:\\Rennen 2", {}});
    addProgram(pc, {"Anderes", "Anderes", "D:\\Anderes", {}});
    const QStringList lines =
        explained(R"({"type": "uninstall", "displayName": "Käferrennen", "executables": ["a.exe"]})");
    EXPECT_THAT(lines, Contains(QString("   * No program of the Uninstall registry is named \"Käferrennen\".")));
    EXPECT_EQ(lines.mid(lines.indexOf("Similar names in the lists:")),
              QStringList({"Similar names in the lists:", R"(   Uninstall: "Käferrennen 2", D:\Rennen 2)"}));
}

TEST_F(Explanation, TellsALongListInBriefUnlessAllIsAskedFor) {
    for (int i = 0; i < 40; ++i) {
        addProgram(pc, {QString("P%1").arg(i), QString("Programm %1").arg(i), "D:\\P", {}});
    }
    addProgram(pc, {"Rennen", "Käferrennen", "D:\\Alt", {}});
    const QByteArray finder = R"({"type": "uninstall", "displayName": "Käferrennen", "executables": ["a.exe"]})";
    const QStringList brief = explained(finder);
    const QStringList full = explained(finder, true);
    EXPECT_LT(brief.size(), 30);
    EXPECT_THAT(brief, Contains(QString("         DisplayName = \"Käferrennen\"")));
    EXPECT_THAT(brief, Not(Contains(QString("         DisplayName = \"Programm 7\""))));
    EXPECT_EQ(brief.filter(" lines about others (--all shows them)").size(), 1);
    EXPECT_THAT(full, Contains(QString("         DisplayName = \"Programm 7\"")));
    EXPECT_EQ(full.filter("--all").size(), 0);
}

TEST_F(Explanation, MakesAListOnceForAllFinders) {
    const QStringList lines = explained(R"({"type": "uninstall", "displayName": "A", "executables": ["a.exe"]},
                                           {"type": "uninstall", "displayName": "B", "executables": ["b.exe"]})");
    EXPECT_EQ(lines.filter("The list Uninstall is made:").size(), 1);
    EXPECT_THAT(lines, Contains(QString("   * No program of the Uninstall registry is named \"B\".")));
}

TEST_F(Explanation, OfTheStartMenuTellsWhereTheShortcutLeads) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menü");
    pc.shortcut("C:\\Menü\\Käferrennen.lnk", "C:\\Alt\\alt.exe");
    const QStringList lines = explained(R"({"type": "startMenu", "name": "Käfer", "executables": ["a.exe"],
                                            "matchMode": 1})");
    EXPECT_THAT(lines, Contains(QString("   shortcut C:\\Menü\\Käferrennen.lnk: leads to C:\\Alt\\alt.exe")));
    EXPECT_THAT(lines,
                Contains(QString("   * The shortcut C:\\Menü\\Käferrennen.lnk leads to none of the executables.")));
    EXPECT_THAT(lines, Contains(QString("     Start menu (shell folder 11): C:\\Menü")));
}

TEST_F(Explanation, OfSteamTellsThatNeitherRegistryNorLibraryHasTheApp) {
    const QStringList lines =
        explained(R"({"type": "steam", "appId": "42", "installFolderName": "Rennen", "executables": ["a.exe"]})");
    EXPECT_THAT(lines, Contains(QString("   * The Uninstall registry has no program under \"Steam App 42\".")));
    EXPECT_THAT(lines, Contains(QString("     registry key HKEY_CLASSES_ROOT\\steam\\Shell\\Open\\Command "
                                        "(32-bit view): there is none")));
    EXPECT_THAT(lines, Contains(QString("   * No Steam library has the app 42.")));
}

TEST_F(Explanation, OfTheStoresTellsThatNoneHasTheGame) {
    pc.folder("C:\\Gemeinsam");
    pc.shellFolder(Platform::csidlCommonAppData, "C:\\Gemeinsam");
    const QStringList lines = explained(R"({"type": "epicStore", "name": "Rennen", "executables": ["a.exe"]},
                     {"type": "oculusStore", "appId": "rennen", "executables": ["a.exe"], "softwareFolder": "rennen"},
                     {"type": "gameForWindow", "title": "Rennen", "executables": ["a.exe"]},
                     {"type": "universalApp", "packageFamily": "Rennen_1"})");
    EXPECT_THAT(lines,
                Contains(QString("     C:\\Gemeinsam\\Epic\\EpicGamesLauncher\\Data\\Manifests, files *.item: 0")));
    EXPECT_THAT(lines, Contains(QString("   * No manifest of the Epic launcher is named \"Rennen\".")));
    EXPECT_THAT(lines, Contains(QString("   * No Oculus library has the app rennen.")));
    EXPECT_THAT(lines, Contains(QString("   * No game of the Games Explorer is named \"Rennen\".")));
    EXPECT_EQ(lines.filter("   app package Rennen_1: ").size(), 1);
    const QRegularExpression noPackage(
        "^   \\* (The app package is not installed|This Windows knows no app packages)\\.$");
    EXPECT_EQ(lines.filter(noPackage).size(), 1);
}

TEST_F(Explanation, TellsThatTheUsersChoiceEndsTheSearch) {
    pc.userChoice("rennen", "D:\\Weg");
    const QStringList lines = explained(R"({"type": "userProvidedLocation", "key": "rennen", "executables": ["a.exe"]},
                                           {"type": "folder", "folder": "D:\\Nichts", "executables": ["a.exe"]})");
    EXPECT_EQ(
        lines,
        QStringList({"Käferrennen: not found", R"(1. userProvidedLocation: key "rennen", executables ["a.exe"])",
                     R"(   the user's folder for "rennen": D:\Weg)", "   D:\\Weg\\a.exe: missing",
                     "   * None of the executables is in D:\\Weg.", "   log: User: Not found D:\\Weg",
                     "   => not found", "   * The user has chosen a folder for this game, so no other finder is asked.",
                     R"(2. folder: folder "D:\Nichts", executables ["a.exe"])", "   => not asked"}));
}

TEST_F(Explanation, NumbersTheFindersWithinAMultiFinder) {
    const QStringList lines = explained(R"({"type": "multi", "finders": [
        {"type": "folder", "folder": "D:\\A", "executables": ["a.exe"]},
        {"type": "folder", "folder": "D:\\B", "executables": ["a.exe"]}]})");
    EXPECT_EQ(lines.filter(QRegularExpression("^[0-9]")),
              QStringList({"1. multi: finders 2", R"(1.1. folder: folder "D:\A", executables ["a.exe"])",
                           R"(1.2. folder: folder "D:\B", executables ["a.exe"])"}));
    EXPECT_EQ(lines.back(), "   => not found by 1.");
}

TEST_F(Explanation, SaysThatAGameHasNoFinders) {
    EXPECT_EQ(explained(""), QStringList({"Käferrennen: not found", "   The catalogue has no finder for it."}));
}

TEST_F(Explanation, KeepsEachLineALineWhateverTheRegistryHolds) {
    addProgram(pc, {"Rennen", "Käferrennen", "D:\\a\nb\x1b[31m", {}});
    const QStringList lines =
        explained(R"({"type": "uninstall", "displayName": "Käferrennen", "executables": ["a.exe"]})");
    EXPECT_THAT(lines, Contains(QString("         InstallLocation = \"D:\\a b [31m\"")));
}

} // namespace
