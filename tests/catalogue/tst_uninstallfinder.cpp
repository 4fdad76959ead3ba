#include "catalogue/UninstallFinder.h"

#include "catalogue/UninstallIndex.h"
#include "support/Paths.h"

#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TraceLog.h"
#include "core/FinderTest.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UninstallFinderTest : public FinderTest {
protected:
    Answer find(const QString& name, const QStringList& executables, int matchMode = 0) {
        UninstallIndex index;
        return ask(Finders::UninstallFinder(&logger, &index, name, executables, matchMode));
    }
};

TEST_F(UninstallFinderTest, FindsEveryExecutableInTheInstallLocation) {
    pc.file("D:\\Games\\Racer\\bin\\racer.exe");
    pc.file("D:\\Games\\Racer\\setup.exe");
    addProgram(pc, {"Racer_is1", "Space Racer", "D:\\Games\\Racer", "\"D:\\Games\\Racer\\unins000.exe\""});
    EXPECT_EQ(find("space racer", {"bin\\racer.exe", "missing.exe", "setup.exe"}),
              foundIn("D:\\Games\\Racer", {"D:\\Games\\Racer\\bin\\racer.exe", "D:\\Games\\Racer\\setup.exe"}));
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("A: Uninstall: Found " + uninstallKeyPath + "\\Racer_is1: D:\\Games\\Racer\\bin\\racer.exe",
                            "A: Uninstall: Found " + uninstallKeyPath + "\\Racer_is1: D:\\Games\\Racer\\setup.exe"))
        << "and the folder of the uninstaller is not looked at";
}

TEST_F(UninstallFinderTest, ComparesNamesIgnoringCase) {
    pc.file("C:\\1\\game.exe");
    pc.file("C:\\2\\game.exe");
    addProgram(pc, {"1", "Space Racer", "C:\\1", {}});
    addProgram(pc, {"2", "Space Racer 2", "C:\\2", {}});
    EXPECT_TRUE(find("space racer", {"game.exe"}, 0));
    EXPECT_EQ(location.installFolder, "C:\\1");
    EXPECT_TRUE(find("SPACE RACER 2", {"game.exe"}, 0));
    EXPECT_EQ(location.installFolder, "C:\\2");
    EXPECT_TRUE(find("SPACE RACER 2", {"game.exe"}, -1)) << "any mode but 1";
    EXPECT_TRUE(find("racer 2", {"game.exe"}, 1));
    EXPECT_EQ(location.installFolder, "C:\\2");
    EXPECT_TRUE(find("racer", {"game.exe"}, 1));
    EXPECT_EQ(location.installFolder, "C:\\1") << "the first that fits";
    EXPECT_FALSE(find("racer 2", {"game.exe"}, 0));
}

TEST_F(UninstallFinderTest, LeavesTheLocationAloneWhenNoEntryHasTheName) {
    addProgram(pc, {"1", "Space Racer", "C:\\1", {}});
    EXPECT_EQ(find("Space Racer 2", {"game.exe"}), leftAlone());
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(UninstallFinderTest, TellsHowTheNameHadToFit) {
    const TraceLog trace;
    find("Käfer", {"k.exe"}, 0);
    find("Käfer", {"k.exe"}, 1);
    EXPECT_THAT(trace.notes(), ElementsAre("No program of the Uninstall registry is named \"Käfer\".",
                                           "No program of the Uninstall registry has a name that contains \"Käfer\"."));
}

TEST_F(UninstallFinderTest, AFailedSearchLeavesTheLastFolderLookedIn) {
    addProgram(pc, {"1", "By location", "C:\\Gone ", {}});
    EXPECT_EQ(find("by location", {"game.exe"}), failedIn("C:\\Gone ")) << "as registered";

    addProgram(pc, {"2", "By uninstaller", "C:\\Gone", "\"D:\\Gone too\\u.exe\""});
    EXPECT_EQ(find("by uninstaller", {"game.exe"}), failedIn("D:/Gone too"));

    EXPECT_EQ(find("by", {"game.exe"}, 1), failedIn("D:/Gone too")) << "both";
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(UninstallFinderTest, LooksBesideTheUninstallerWhenTheLocationHasNothing) {
    pc.file("C:\\Games\\X\\game.exe");
    pc.file("C:\\Games\\X\\bin\\tool.exe");
    pc.folder("C:\\Elsewhere");
    addProgram(pc, {"1", "X", "C:\\Elsewhere", "\"C:\\Games\\X\\unins000.exe\" /SILENT"});
    EXPECT_EQ(find("X", {"missing.exe", "game.exe", "bin\\tool.exe"}),
              foundIn("C:/Games/X", {"C:/Games/X\\game.exe", "C:/Games/X\\bin\\tool.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Uninstall: Found C:/Games/X\\game.exe",
                                                 "A: Uninstall: Found C:/Games/X\\bin\\tool.exe"));
}

TEST_F(UninstallFinderTest, AnEmptyLocationIsNotLookedIn) {
    addProgram(pc, {"2", "Y", {}, "MsiExec.exe /X"});
    EXPECT_EQ(find("Y", {"tmp", "Windows"}), failedIn("")) << "which exist at the root of the drive";

    pc.file("C:\\Games\\X\\game.exe");
    addProgram(pc, {"1", "X", {}, "C:\\Games\\X\\unins000.exe"});
    EXPECT_TRUE(find("X", {"game.exe"}));
    EXPECT_EQ(location.launchCommand, "C:/Games/X\\game.exe");
}

TEST_F(UninstallFinderTest, TakesTheProgramOutOfAQuotedCommand) {
    pc.file("C:\\Games\\X\\game.exe");
    int number = 0;
    for (const char* command :
         {"\"C:\\Games\\X\\unins000.exe\" /SILENT", "\"C:\\Games\\X\\unins000.exe\"", "\"C:\\Games\\X\\unins000.exe",
          "C:\\Games\\X\\unins000.exe", "C:/Games/X/unins000.exe", "\"C:\\Games\\X\\u.exe\" \"D:\\other\"",
          "c:\\Games\\X\\unins000.exe -silent", "C:\\Games\\.\\Y\\..\\X\\u.exe", "C:\\Games\\X\\",
          "\\\\?\\C:\\Games\\X\\unins000.exe", "\"\\\\?\\C:\\Games\\X\\unins000.exe\" /SILENT", "C:Games\\X\\u.exe"}) {
        const QString name = "X" + QString::number(++number);
        addProgram(pc, {name, name, {}, command});
        EXPECT_TRUE(find(name, {"game.exe"})) << command;
        EXPECT_EQ(location.installFolder, "C:/Games/X") << command;
    }
}

TEST_F(UninstallFinderTest, AnUnquotedCommandIsTakenWithItsArguments) {
    pc.file("C:\\Games\\X\\game.exe");
    addProgram(pc, {"1", "X", {}, "C:\\Games\\X\\unins000.exe /SILENT"});
    EXPECT_EQ(find("X", {"game.exe"}), failedIn("C:/Games/X/unins000.exe ")) << "the folder ends at the last slash";
}

TEST_F(UninstallFinderTest, ACommandOfAQuoteAloneLeadsNowhere) {
    addProgram(pc, {"1", "X", "C:\\X", "\""});
    EXPECT_EQ(find("X", {"no such game.exe"}), failedIn(""));
}

TEST_F(UninstallFinderTest, ACommandWithoutAFolderStandsForTheCurrentOne) {
    addProgram(pc, {"1", "X", {}, "unins000.exe"});
    EXPECT_EQ(find("X", {"no such game.exe"}), failedIn(Paths::absoluteFolder(".")));
}

TEST_F(UninstallFinderTest, SomeCommandsTellNoFolderOfTheGame) {
    pc.file("C:\\Games\\X\\game.exe");
    pc.file("C:\\Package Cache\\game.exe");
    int number = 0;
    for (const char* command : {"MsiExec.exe /X{4C0F}", "C:\\Games\\X\\MSIEXEC.EXE", "\"C:\\Games\\X\\msiexec.exe\" /I",
                                "C:\\package CACHE\\u.exe", "C:\\Games\\X\\steam.exe STEAM://uninstall/440", ""}) {
        const QString name = "X" + QString::number(++number);
        addProgram(pc, {name, name, "C:\\Gone", command});
        EXPECT_EQ(find(name, {"game.exe"}), failedIn("C:\\Gone")) << command;
    }
    EXPECT_THAT(pc.messages("Test"), IsEmpty());

    addProgram(pc, {"located", "Located", "C:\\Games\\X", "MsiExec.exe /X{4C0F}"});
    EXPECT_TRUE(find("Located", {"game.exe"})) << "by its install location";
    EXPECT_EQ(location.launchCommand, "C:\\Games\\X\\game.exe");
}

TEST_F(UninstallFinderTest, TheLocationIsTakenAsItStands) {
    pc.file("C:\\Games\\X\\game.exe");
    addProgram(pc, {"1", "Trailing separator", "C:\\Games\\X\\", {}});
    EXPECT_TRUE(find("Trailing separator", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "C:\\Games\\X\\");
    EXPECT_EQ(location.launchCommand, "C:\\Games\\X\\\\game.exe");

    addProgram(pc, {"2", "Slashes", "C:/Games/X", {}});
    EXPECT_TRUE(find("Slashes", {"game.exe"}));
    EXPECT_EQ(location.launchCommand, "C:/Games/X\\game.exe");

    addProgram(pc, {"3", "Quotes", "\"C:\\Games\\X\"", {}});
    EXPECT_EQ(find("Quotes", {"game.exe"}), failedIn("\"C:\\Games\\X\""));
}

TEST_F(UninstallFinderTest, TheFirstEntryThatYieldsAnExecutableWins) {
    pc.file("C:\\32\\game.exe");
    pc.file("C:\\64\\game.exe");
    pc.file("C:\\User\\game.exe");
    addProgram(pc, {"a", "X", "C:\\User", {}, RootKey::CurrentUser, View::view64});
    addProgram(pc, {"a", "X", "C:\\64", {}, RootKey::LocalMachine, View::view64});
    EXPECT_TRUE(find("X", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "C:\\User");
    addProgram(pc, {"b", "X", "C:\\32", {}, RootKey::LocalMachine, View::view32});
    EXPECT_TRUE(find("X", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "C:\\32") << "the machine's 32-bit keys come first";
    addProgram(pc, {"a", "X", "C:\\Gone", {}, RootKey::LocalMachine, View::view32});
    EXPECT_TRUE(find("X", {"game.exe"}));
    EXPECT_EQ(location.installFolder, "C:\\32") << "an entry that yields nothing is passed over";
}

TEST_F(UninstallFinderTest, WithoutExecutablesNothingIsFound) {
    pc.file("C:\\X\\game.exe");
    addProgram(pc, {"1", "X", "C:\\X", {}});
    EXPECT_EQ(find("X", {}), failedIn("C:\\X"));
}

TEST_F(UninstallFinderTest, QuotesFurtherOnDoNotEndAnUnquotedCommand) {
    pc.file("C:\\Games\\X\\game.exe");
    addProgram(pc, {"1", "X", {}, "C:\\Games\\X\\unins000.exe \"/LOG=u.log\""});
    EXPECT_EQ(find("X", {"game.exe"}), failedIn("C:/Games/X/unins000.exe \""));
}

} // namespace
