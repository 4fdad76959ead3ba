#include "steam/SteamLocator.h"

#include "support/Logger.h"
#include "support/RegistryKey.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"
#include "platform/Registry.h"
#include "recordings/RegValues.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SteamLocatorTest : public ::testing::Test {
protected:
    SteamLocatorTest() {
        pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
        pc.shellFolder(Platform::csidlCommonStartMenu, "C:\\All Users' Menu");
    }

    /// The command for steam:// URLs, which both views show.
    void registerHandler(const QString& command) {
        for (const quint32 view : {View::view32, View::view64}) {
            pc.value({RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", view}, "", command);
        }
    }

    void registerUninstaller(quint32 view, const QString& command) {
        pc.value({RootKey::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam", view},
                 "UninstallString", command);
    }

    QString find() { return findSteamExecutable(logger); }

    TestPc pc;
    Logger logger = Logger::create("Test");
};

TEST_F(SteamLocatorTest, FindsTheClientByItsUrlHandler) {
    pc.file("C:\\Program Files (x86)\\Steam\\steam.exe");
    registerHandler("\"C:\\Program Files (x86)\\Steam\\steam.exe\" -- \"%1\"");
    EXPECT_EQ(find(), "C:\\Program Files (x86)\\Steam\\steam.exe");
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("A: SteamExeFinder: Checking C:\\Program Files (x86)\\Steam\\steam.exe"));
}

TEST_F(SteamLocatorTest, TakesThePathOutOfTheCommand) {
    pc.file("C:\\Steam\\steam.exe");
    for (const char* command : {"\"C:\\Steam\\steam.exe\" \"%1\"", "\"C:\\Steam\\steam.exe\"", "C:\\Steam\\steam.exe",
                                "C:\\Steam\\steam.exe \"%1\"", "  C:\\Steam\\steam.exe -- \"%1\"\t",
                                "-- \"%1\"C:\\Steam\\steam.exe-- \"%1\"", "\"C:\\Steam\\uninstall.exe\" \"%1\""}) {
        registerHandler(command);
        EXPECT_EQ(find(), "C:\\Steam\\steam.exe") << command;
    }
}

TEST_F(SteamLocatorTest, AQuoteThatIsNotClosedCostsTheLastCharacter) {
    registerHandler("\"C:\\Steam\\steam.exe \"%1\"");
    EXPECT_EQ(find(), "");
    EXPECT_EQ(pc.messages("Test").first(), "A: SteamExeFinder: Checking C:\\Steam\\steam.ex");
}

TEST_F(SteamLocatorTest, ReturnsThePathAsItIsSpelled) {
    pc.file("C:\\Steam\\steam.exe");
    registerHandler("c:/STEAM//./Steam.exe");
    EXPECT_EQ(find(), "c:/STEAM//./Steam.exe");
}

TEST_F(SteamLocatorTest, CleaningKeepsItsOrder) {
    registerHandler("\"C:\\\"%1\"A\\-- \"%1\"UnInstall.EXE -- \"%2\"\"");
    EXPECT_EQ(find(), "");
    EXPECT_EQ(pc.messages("Test").first(), "A: SteamExeFinder: Checking C:\\A\\steam.exe -- \"%2\"");
}

TEST_F(SteamLocatorTest, ArgumentsBehindTheClosingQuoteMakeAPathThatDoesNotExist) {
    pc.file("C:\\Steam\\steam.exe");
    pc.file("D:\\Steam\\steam.exe");
    registerHandler("\"C:\\Steam\\steam.exe\" -silent");
    registerUninstaller(View::view32, "\"D:\\Steam\\Uninstall.exe\"");
    EXPECT_EQ(find(), "D:\\Steam\\steam.exe") << "by the next source";
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: SteamExeFinder: Checking C:\\Steam\\steam.exe\" -silen",
                                                 "A: SteamExeFinder: Checking C:\\Steam\\steam.exe\" -silen",
                                                 "A: SteamExeFinder: Checking D:\\Steam\\steam.exe"));
}

TEST_F(SteamLocatorTest, TriesTheMachinesUninstallersIn32BitFirst) {
    pc.file("C:\\32\\steam.exe");
    pc.file("C:\\64\\steam.exe");
    registerUninstaller(View::view64, "C:\\64\\UNINSTALL.EXE");
    EXPECT_EQ(find(), "C:\\64\\steam.exe");
    registerUninstaller(View::view32, "C:\\32\\uninstall.exe");
    EXPECT_EQ(find(), "C:\\32\\steam.exe");
    registerHandler("C:\\Gone\\steam.exe");
    EXPECT_EQ(find(), "C:\\32\\steam.exe");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: SteamExeFinder: Checking C:\\64\\steam.exe",
                                                 "A: SteamExeFinder: Checking C:\\32\\steam.exe",
                                                 "A: SteamExeFinder: Checking C:\\Gone\\steam.exe",
                                                 "A: SteamExeFinder: Checking C:\\Gone\\steam.exe",
                                                 "A: SteamExeFinder: Checking C:\\32\\steam.exe"))
        << "what both views show is checked twice";
}

TEST_F(SteamLocatorTest, OnlyTheSourcesRootsCount) {
    pc.file("C:\\Steam\\steam.exe");
    const QString uninstall = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam";
    pc.value({RootKey::CurrentUser, uninstall}, "UninstallString", "C:\\Steam\\uninstall.exe");
    pc.value({RootKey::LocalMachine, uninstall}, "DisplayIcon", "C:\\Steam\\uninstall.exe");
    EXPECT_EQ(find(), "");
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(SteamLocatorTest, EmptyValuesAreNotChecked) {
    registerHandler("");
    registerUninstaller(View::view32, "");
    EXPECT_EQ(find(), "");
    EXPECT_THAT(pc.messages("Test"), IsEmpty());

    registerHandler(" \"%1\" ");
    EXPECT_EQ(find(), "");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: SteamExeFinder: Checking ", "A: SteamExeFinder: Checking "))
        << "but one that cleaning empties is";
}

TEST_F(SteamLocatorTest, AValueOfAnotherTypeIsCheckedAsItReads) {
    pc.number({RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", View::view32}, "", 42);
    EXPECT_EQ(find(), "");
    EXPECT_EQ(pc.messages("Test").first(), "A: SteamExeFinder: Checking 42");
}

TEST_F(SteamLocatorTest, FallsBackToTheStartMenu) {
    registerHandler("C:\\Gone\\steam.exe");
    pc.file("D:\\Steam\\Steam.exe");
    pc.shortcut("C:\\All Users' Menu\\Programs\\Steam\\STEAM.lnk", "D:\\Steam\\Steam.exe");
    pc.file("D:\\Help\\steam.exe");
    pc.shortcut("C:\\Menu\\Steam Support.lnk", "D:\\Help\\steam.exe");
    EXPECT_EQ(find(), "D:/Steam/Steam.exe");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: SteamExeFinder: Checking C:\\Gone\\steam.exe",
                                                 "A: SteamExeFinder: Checking C:\\Gone\\steam.exe",
                                                 "A: StartMenu: Found D:/Steam/Steam.exe"));
}

TEST_F(SteamLocatorTest, LooksAtTheStartMenuAnewAtEachCall) {
    EXPECT_EQ(find(), "");
    pc.file("D:\\Steam\\steam.exe");
    pc.shortcut("C:\\Menu\\Steam.lnk", "D:\\Steam\\steam.exe");
    EXPECT_EQ(find(), "D:/Steam/steam.exe");
    pc.removeFile("C:\\Menu\\Steam.lnk");
    EXPECT_EQ(find(), "");
}

TEST_F(SteamLocatorTest, AShortcutToAnotherProgramIsNotTheClient) {
    pc.file("D:\\Help\\help.exe");
    pc.shortcut("C:\\Menu\\Steam.lnk", "D:\\Help\\help.exe");
    EXPECT_EQ(find(), "");
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(SteamLocatorTest, TheConfigurationFolderLiesBesideTheExecutable) {
    EXPECT_EQ(findSteamConfigFolder(logger), "");
    pc.file("C:\\Steam\\steam.exe");
    registerHandler("\"C:\\Steam\\steam.exe\" -- \"%1\"");
    EXPECT_EQ(findSteamConfigFolder(logger), "C:/Steam/config") << "whether it exists or not";
    registerHandler("c:\\Steam\\.\\steam.exe");
    EXPECT_EQ(findSteamConfigFolder(logger), "C:/Steam/config");
}

TEST_F(SteamLocatorTest, AnExpandableCommandIsCheckedAsItReads) {
    const QString command = "C:\\Steam\\steam.exe";
    pc.file(command);
    pc.value({RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", View::view32}, "", 2,
             Recordings::storedText(command));
    EXPECT_EQ(find(), "");
    EXPECT_EQ(pc.messages("Test").first(), "A: SteamExeFinder: Checking ?");
}

TEST_F(SteamLocatorTest, TheConfigurationFolderIsFoundThroughTheStartMenuAsWell) {
    pc.file("D:\\Steam\\Steam.exe");
    pc.shortcut("C:\\Menu\\Steam.lnk", "D:\\Steam\\Steam.exe");
    EXPECT_EQ(findSteamConfigFolder(logger), "D:/Steam/config");
}

} // namespace
