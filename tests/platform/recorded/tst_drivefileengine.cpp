#include "common/QtPrinters.h"
#include "platform/recorded/DrivesTest.h"
#include "platform/recorded/Observer.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

using DriveFileEngineTest = DrivesTest;

// Finding

TEST_F(DriveFileEngineTest, FindsFilesAndFolders) {
    EXPECT_TRUE(QFileInfo::exists("C:/Games/Käfer/Käfer.exe"));
    EXPECT_TRUE(QFile::exists("C:\\Games\\Käfer\\Käfer.exe"));
    EXPECT_TRUE(QFile("C:/Games/readme.txt").exists());
    EXPECT_TRUE(QDir("C:\\Games").exists());
    EXPECT_TRUE(QFileInfo("C:/Games").isDir());
    EXPECT_FALSE(QFileInfo("C:/Games").isFile());
    EXPECT_TRUE(QFileInfo("C:/Games/readme.txt").isFile());
    EXPECT_FALSE(QFileInfo("C:/Games/readme.txt").isDir());
    EXPECT_FALSE(QDir("C:/Games/readme.txt").exists());
}

TEST_F(DriveFileEngineTest, FindsWhateverTheSpelling) {
    for (const char* const path :
         {"c:/GAMES/KÄFER/käfer.EXE", "C:\\Games//.\\Käfer\\..\\Käfer\\Käfer.exe", "C:/../Games/Käfer/Käfer.exe.",
          "\\\\?\\C:\\games\\käfer\\käfer.exe", "C:Games/Käfer/Käfer.exe", "C:/Games./Käfer/Käfer.exe"}) {
        EXPECT_TRUE(QFileInfo::exists(path)) << path;
    }
}

TEST_F(DriveFileEngineTest, DoesNotFindWhatWindowsWouldNot) {
    for (const char* const path :
         {"C:/Games/none", "C:/none/readme.txt", "C:/Games/readme.txt ", "C:/Games/readme.txt/",
          "C:/Games/readme.txt/x", "C:/Games/*.txt", "C:/Games/readme?txt", "E:/", "E:/x", "C:/Games/readme.txt:stream",
          "C:/Games /readme.txt", "//?/C:/Games"}) {
        EXPECT_FALSE(QFileInfo::exists(path)) << path;
        EXPECT_FALSE(QFileInfo(path).isFile()) << path;
        EXPECT_FALSE(QFileInfo(path).isDir()) << path;
        EXPECT_FALSE(QFile(path).open(QIODevice::ReadOnly)) << path;
    }
}

TEST_F(DriveFileEngineTest, KnowsADriveByItsRoot) {
    EXPECT_TRUE(QDir("C:/").exists());
    EXPECT_TRUE(QDir("d:\\").exists());
    EXPECT_TRUE(QFileInfo("C:/").isRoot());
    EXPECT_FALSE(QFileInfo("C:/Games").isRoot());
    EXPECT_FALSE(QDir("E:/").exists());
}

TEST_F(DriveFileEngineTest, TakesADriveFolderInSmallLetters) {
    pc.file("drives/f/x");
    EXPECT_TRUE(QFileInfo::exists("F:/X"));
}

TEST_F(DriveFileEngineTest, SeesChangesAtOnce) {
    EXPECT_FALSE(QFileInfo::exists("C:/Games/new.txt"));
    pc.file("drives/C/Games/new.txt");
    EXPECT_TRUE(QFileInfo::exists("C:/Games/new.txt"));
}

TEST_F(DriveFileEngineTest, FindsNoDriveWithoutARecording) {
    qunsetenv(Recordings::environmentVariable);
    EXPECT_FALSE(QFileInfo::exists("C:/Games"));
    EXPECT_FALSE(QDir("C:/").exists());
}

TEST_F(DriveFileEngineTest, KeepsThePcThatAnObjectBeganWith) {
    const QFileInfo file("C:/Games/readme.txt");
    RecordingFolder other;
    other.choose();
    EXPECT_TRUE(file.exists());
    EXPECT_FALSE(QFileInfo::exists("C:/Games/readme.txt"));
}

TEST_F(DriveFileEngineTest, LeavesOtherPathsToTheRealFileSystem) {
    EXPECT_TRUE(QFileInfo::exists(pc.path("drives/C")));
    EXPECT_TRUE(QFileInfo("/").isDir());
}

// What a file is

TEST_F(DriveFileEngineTest, TellsSizeAndNoTimes) {
    QFileInfo file("C:/Games/Käfer/Käfer.exe");
    EXPECT_EQ(file.size(), 5);
    EXPECT_EQ(QFileInfo("C:/Games").size(), 0);
    EXPECT_EQ(QFileInfo("C:/none").size(), 0);
    EXPECT_FALSE(file.lastModified().isValid());
}

TEST_F(DriveFileEngineTest, TellsPermissionsAsQtDoesOnWindows) {
    EXPECT_TRUE(QFileInfo("C:/Games/Käfer/Käfer.exe").isExecutable());
    EXPECT_FALSE(QFileInfo("C:/Games/readme.txt").isExecutable());
    EXPECT_TRUE(QFileInfo("C:/Games/readme.txt").isReadable());
}

TEST_F(DriveFileEngineTest, HidesWhatTheDescriptionHides) {
    pc.describe(R"({"hidden": ["c:\\games\\EMPTY", "C:\\"]})");
    pc.file("drives/C/Games/.dot");
    pc.choose();
    EXPECT_TRUE(QFileInfo("C:/Games/Empty").isHidden());
    EXPECT_FALSE(QFileInfo("C:/Games/.dot").isHidden());
    EXPECT_FALSE(QFileInfo("C:/").isHidden()) << "a drive never is";
    EXPECT_THAT(QDir("C:/Games").entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                ElementsAre(".dot", "Käfer", "readme.txt"));
}

// Names

TEST_F(DriveFileEngineTest, GivesAbsolutePathsAsQtDoesOnWindows) {
    EXPECT_EQ(QDir("C:\\games\\").absolutePath(), "C:/games");
    EXPECT_EQ(QDir("c:/Games/../games").absolutePath(), "C:/games");
    EXPECT_EQ(QFileInfo("C:\\Games\\readme.txt").absoluteFilePath(), "C:/Games/readme.txt");
    EXPECT_EQ(QFileInfo("c:\\Games\\readme.txt").absolutePath(), "C:/Games");
    EXPECT_EQ(QFileInfo("C:/Games//x/").absoluteFilePath(), "C:/Games/x/");
    EXPECT_EQ(QFileInfo("C:/readme.txt").absolutePath(), "C:/");
    EXPECT_EQ(QDir("C:/").absoluteFilePath("x"), "C:/x");
    EXPECT_EQ(QDir("C:\\Games").absoluteFilePath("Käfer\\Käfer.exe"), "C:/Games/Käfer\\Käfer.exe");
    EXPECT_EQ(QFile("C:\\Games\\readme.txt").fileName(), "C:/Games/readme.txt");
    EXPECT_EQ(QFileInfo("C:/Games/a.b.txt").baseName(), "a");
}

TEST_F(DriveFileEngineTest, TakesADriveForAbsolute) {
    EXPECT_TRUE(QFileInfo("D:\\x").isAbsolute());
    EXPECT_TRUE(QDir::isAbsolutePath("D:/x"));
    EXPECT_EQ(QDir("C:/Games").absoluteFilePath("D:\\x"), "D:\\x");
    EXPECT_EQ(QDir("C:/Games").filePath("D:/x"), "D:/x");
}

TEST_F(DriveFileEngineTest, GivesCanonicalPathsAsQtDoesOnWindows) {
    EXPECT_EQ(QFileInfo("c:\\GAMES\\x\\..\\README.TXT").canonicalFilePath(), "C:/GAMES/README.TXT");
    EXPECT_EQ(QDir("C:/Games/").canonicalPath(), "C:/Games");
    EXPECT_EQ(QFileInfo("C:/none").canonicalFilePath(), "");
}

TEST_F(DriveFileEngineTest, ChangesFolders) {
    QDir folder("C:/Games");
    EXPECT_TRUE(folder.cd("käfer"));
    EXPECT_EQ(folder.absolutePath(), "C:/Games/käfer");
    EXPECT_TRUE(folder.cdUp());
    EXPECT_EQ(folder.absolutePath(), "C:/Games");
    EXPECT_FALSE(folder.cd("none"));
    EXPECT_FALSE(folder.cd("readme.txt"));
    EXPECT_TRUE(folder.exists("readme.txt"));
}

// Reading

TEST_F(DriveFileEngineTest, ReadsAFile) {
    QFile file("C:/GAMES/readme.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.size(), 5);
    EXPECT_EQ(file.readAll(), "hello");
    EXPECT_TRUE(file.atEnd());
    EXPECT_TRUE(file.seek(1));
    EXPECT_EQ(file.read(3), "ell");
    EXPECT_EQ(file.pos(), 4);
}

TEST_F(DriveFileEngineTest, ReadsLines) {
    pc.file("drives/D/lines", "one\r\ntwo\nthree");
    QFile file("D:/lines");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    EXPECT_EQ(file.readLine(), "one\n");
    EXPECT_EQ(file.readLine(), "two\n");
    EXPECT_EQ(file.readLine(), "three");
    EXPECT_EQ(file.readLine(), "");
}

TEST_F(DriveFileEngineTest, ReadsAnEmptyFile) {
    pc.file("drives/D/empty");
    QFile file("D:/empty");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "");
}

TEST_F(DriveFileEngineTest, SaysWhyAFileCannotBeOpened) {
    QFile missing("C:/none");
    EXPECT_FALSE(missing.open(QIODevice::ReadOnly));
    EXPECT_EQ(missing.error(), QFile::OpenError);
    EXPECT_EQ(missing.errorString(), "The system cannot find the file specified.");
    QFile lost("C:/none/none");
    EXPECT_FALSE(lost.open(QIODevice::ReadOnly));
    EXPECT_EQ(lost.errorString(), "The system cannot find the path specified.");
    QFile folder("C:/Games");
    EXPECT_FALSE(folder.open(QIODevice::ReadOnly));
    EXPECT_EQ(folder.errorString(), "Access is denied.");
}

// Writing

TEST_F(DriveFileEngineTest, WritesNothing) {
    EXPECT_FALSE(QFile("C:/new").open(QIODevice::WriteOnly));
    EXPECT_FALSE(QFile("C:/Games/readme.txt").open(QIODevice::ReadWrite));
    EXPECT_FALSE(QFile("C:/Games/readme.txt").open(QIODevice::Append));
    EXPECT_FALSE(QFile::remove("C:/Games/readme.txt"));
    EXPECT_FALSE(QFile::rename("C:/Games/readme.txt", "C:/Games/other.txt"));
    EXPECT_FALSE(QFile::copy("C:/Games/readme.txt", "C:/Games/other.txt"));
    EXPECT_FALSE(QFile("C:/Games/readme.txt").resize(0));
    EXPECT_FALSE(QFile("C:/Games/readme.txt").setPermissions(QFile::ReadOwner));
    EXPECT_FALSE(QDir("C:/Games").mkdir("new"));
    EXPECT_FALSE(QDir("C:/Games").mkpath("C:/Games/new"));
    EXPECT_FALSE(QDir("C:/Games").rmdir("Empty"));
    EXPECT_EQ(QDir("C:/Games").entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3);
    EXPECT_EQ(QFileInfo("C:/Games/readme.txt").size(), 5);
    EXPECT_FALSE(QFileInfo("C:/Games/readme.txt").isWritable());
}

TEST_F(DriveFileEngineTest, CopiesToTheRealFileSystem) {
    EXPECT_TRUE(QFile::copy("C:/Games/readme.txt", pc.path("copy.txt")));
    EXPECT_EQ(QFileInfo(pc.path("copy.txt")).size(), 5);
}

// Observation

TEST_F(DriveFileEngineTest, TellsWhatIsAsked) {
    QStringList asked;
    Recorded::setObserver([&asked](const QString& question) { asked.append(question); });
    QDir("C:\\games").entryList(QDir::Files);
    QFile file("C:/Games/readme.txt");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    Recorded::setObserver({});
    EXPECT_EQ(asked.count("list C:/games"), 1);
    EXPECT_EQ(asked.count("open C:/Games/readme.txt"), 1);
    EXPECT_TRUE(asked.contains("stat C:/games/readme.txt"));
}

} // namespace
