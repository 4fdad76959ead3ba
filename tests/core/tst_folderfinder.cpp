#include "core/FolderFinder.h"

#include "common/QtPrinters.h"
#include "core/FinderTest.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FolderFinderTest : public FinderTest {
protected:
    Answer find(const QString& folder, const QStringList& executables) {
        return ask(Finders::FolderFinder(&logger, folder, executables));
    }
};

TEST_F(FolderFinderTest, FindsEveryExecutableInTheOrderGiven) {
    pc.file("D:\\Games\\X\\b.exe");
    pc.file("D:\\Games\\X\\a.exe");
    EXPECT_EQ(find("D:\\Games\\X", {"a.exe", "missing.exe", "b.exe"}),
              foundIn("D:\\Games\\X", {"D:\\Games\\X\\a.exe", "D:\\Games\\X\\b.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Folder: D:/Games/X/a.exe", "A: Folder: D:/Games/X/b.exe"));
}

TEST_F(FolderFinderTest, LeavesTheLocationAloneWhenTheFolderIsMissing) {
    pc.file("C:\\Games\\file");
    EXPECT_EQ(find("C:\\Games\\X", {"a.exe"}), leftAlone());
    EXPECT_EQ(find("C:\\Games\\file", {"a.exe"}), leftAlone()) << "a file is no folder";
    EXPECT_EQ(find("Q:\\Games", {"a.exe"}), leftAlone()) << "no such drive";
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(FolderFinderTest, ResetsTheLocationWhenNoExecutableExists) {
    pc.folder("C:\\Games\\X");
    EXPECT_EQ(find("C:\\Games\\X", {"a.exe"}), failedIn(""));
    EXPECT_EQ(find("C:\\Games\\X", {}), failedIn(""));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(FolderFinderTest, TheInstallFolderIsTheGivenOneEvenForAnExecutableBelowIt) {
    pc.file("D:\\Games\\X\\bin\\win64\\x.exe");
    EXPECT_TRUE(find("D:\\Games\\X", {"bin\\win64\\x.exe"}));
    EXPECT_EQ(location.installFolder, "D:\\Games\\X");
    EXPECT_EQ(location.launchCommand, "D:\\Games\\X\\bin\\win64\\x.exe");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\Games\\X\\bin\\win64\\x.exe"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Folder: D:/Games/X/bin\\win64\\x.exe"));
}

TEST_F(FolderFinderTest, AnAbsolutePathStandsForItself) {
    pc.folder("C:\\Games\\X");
    pc.file("D:\\Elsewhere\\x.exe");
    EXPECT_TRUE(find("C:\\Games\\X", {"D:\\Elsewhere\\x.exe", "D:/Elsewhere/x.exe"}));
    EXPECT_EQ(location.installFolder, "C:\\Games\\X");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\Elsewhere\\x.exe", "D:\\Elsewhere\\x.exe"));
}

TEST_F(FolderFinderTest, TheFolderMayBeSpelledInAnyWay) {
    pc.file("C:\\Games\\X\\a.exe");
    for (const char* folder :
         {"C:/Games/X", "c:\\games\\x", "C:\\Games\\X\\", "C:\\Games\\\\X//", "C:\\Games\\.\\Y\\..\\X"}) {
        EXPECT_TRUE(find(folder, {"A.EXE"})) << folder;
        EXPECT_EQ(location.installFolder.toLower(), "c:\\games\\x") << folder;
        EXPECT_EQ(location.launchCommand.toLower(), "c:\\games\\x\\a.exe") << folder;
    }
    EXPECT_TRUE(find("c:\\games\\x", {"A.EXE"}));
    EXPECT_EQ(location.launchCommand, "c:\\games\\x\\A.EXE") << "as it was asked for";
}

TEST_F(FolderFinderTest, FindsNamesOutsideTheCodePage) {
    const QString folder = QString::fromUtf8("C:\\Spiele\\Käferrennen 競走 \xF0\x9F\x8E\xAE");
    pc.file(folder + QString::fromUtf8("\\競走.exe"));
    EXPECT_TRUE(find(folder, {QString::fromUtf8("競走.exe")}));
    EXPECT_EQ(location.launchCommand, folder + QString::fromUtf8("\\競走.exe"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: Folder: " + QDir::fromNativeSeparators(folder).replace('\\', '/') +
                                                 QString::fromUtf8("/競走.exe")));
}

TEST_F(FolderFinderTest, ADirectoryOfTheRightNameCountsAsWell) {
    pc.folder("C:\\Games\\X\\a.exe");
    EXPECT_TRUE(find("C:\\Games\\X", {"a.exe"}));
    EXPECT_EQ(location.launchCommand, "C:\\Games\\X\\a.exe");
}

TEST_F(FolderFinderTest, LooksAgainAtEverySearch) {
    pc.folder("C:\\Games\\X");
    Finders::FolderFinder finder(&logger, "C:\\Games\\X", {"a.exe"});
    EXPECT_FALSE(finder.find(location));
    pc.file("C:\\Games\\X\\a.exe");
    EXPECT_TRUE(finder.find(location));
    pc.removeFile("C:\\Games\\X\\a.exe");
    EXPECT_FALSE(finder.find(location));
}

TEST_F(FolderFinderTest, APathOfAnyLengthIsLookedFor) {
    QString folder = "D:";
    while (folder.size() < 300) {
        folder += "\\" + QString(49, 'f');
    }
    pc.file(folder + "\\a.exe");
    EXPECT_TRUE(find(folder, {QString(300, 'x'), "a.exe", QString(40'000, 'x')}));
    EXPECT_THAT(location.executablePaths, ElementsAre(folder + "\\a.exe"));
    for (const int length : {4'096, 40'000}) {
        EXPECT_FALSE(find("D:\\" + QString(length, 'f'), {"a.exe"})) << length;
    }
}

TEST_F(FolderFinderTest, NamesThatWindowsReadsInItsOwnWayCostNoOther) {
    pc.file("D:\\Games\\X\\a.exe");
    const QString path = "D:\\Games\\X\\";
    for (const char* const name : {"CON", "NUL", "nul.exe", "COM1.txt", "AUX", "LPT9", "CON\\a.exe", "a.exe ", " ",
                                   "a.exe:stream", "a.exe\\", "*", "a.ex?"}) {
        EXPECT_TRUE(find("D:\\Games\\X", {name, "a.exe"})) << name;
        EXPECT_THAT(location.executablePaths, ElementsAre(path + "a.exe")) << name;
    }
    for (const char* const name : {"a.exe.", ".", "..", "..."}) {
        EXPECT_TRUE(find("D:\\Games\\X", {name, "a.exe"})) << name;
        EXPECT_THAT(location.executablePaths, ElementsAre(path + name, path + "a.exe")) << "dots at the end are none";
    }
    for (const char* const folder : {"CON", "NUL", "\\\\.\\NUL", "\\\\.\\COM1", "D:\\Games\\CON", "D:\\Games\\X ",
                                     "D:\\Games\\...", "D:\\Games\\X\\NUL", " "}) {
        EXPECT_FALSE(find(folder, {"a.exe"})) << folder;
    }
    EXPECT_TRUE(find("D:\\Games\\X.", {"a.exe"}));
}

} // namespace
