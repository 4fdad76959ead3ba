#include "common/QtPrinters.h"
#include "platform/recorded/DrivesTest.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <filesystem>

#include <sys/stat.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr QDir::Filters everything = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;

QStringList walk(const QString& path, QDirIterator::IteratorFlags flags = QDirIterator::Subdirectories) {
    QStringList paths;
    QDirIterator iterator(path, everything, flags);
    while (iterator.hasNext()) {
        paths.append(iterator.next());
    }
    return paths;
}

using DriveListingTest = DrivesTest;

TEST_F(DriveListingTest, ListsInTheOrderOfNtfs) {
    for (const char* const name : {"b.txt", "C.txt", "_.txt", "a.txt", "Z.txt"}) {
        pc.file(QByteArray("drives/D/") + name);
    }
    pc.folder("drives/D/B folder");
    QDir folder("D:/");
    folder.setSorting(QDir::Unsorted);
    EXPECT_THAT(folder.entryList(), ElementsAre("a.txt", "B folder", "b.txt", "C.txt", "Z.txt", "_.txt"));
}

TEST_F(DriveListingTest, ListsWhatAFilterAsksFor) {
    const QDir folder("C:\\Games");
    EXPECT_THAT(folder.entryList(), ElementsAre(".", "..", "Empty", "Käfer", "readme.txt"));
    EXPECT_THAT(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot), ElementsAre("Empty", "Käfer"));
    EXPECT_THAT(folder.entryList(QDir::Files), ElementsAre("readme.txt"));
    EXPECT_THAT(folder.entryList({"*.TXT"}, QDir::Files), ElementsAre("readme.txt"));
    EXPECT_THAT(folder.entryList({"*.exe"}, QDir::Files), IsEmpty());
    EXPECT_THAT(QDir("C:/").entryList(), ElementsAre("Games")) << "a root has no dots";
    EXPECT_THAT(QDir("C:/none").entryList(), IsEmpty());
    EXPECT_THAT(QDir("C:/Games/readme.txt").entryList(), IsEmpty());
}

TEST_F(DriveListingTest, ListsFilesThatCanBeUsed) {
    const QFileInfoList files = QDir("C:\\Games").entryInfoList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files[0].filePath(), "C:/Games/readme.txt");
    EXPECT_EQ(files[0].absoluteFilePath(), "C:/Games/readme.txt");
    EXPECT_EQ(files[0].size(), 5);
}

TEST_F(DriveListingTest, Walks) {
    EXPECT_THAT(walk("C:/"), UnorderedElementsAre("C:/Games", "C:/Games/Empty", "C:/Games/Käfer",
                                                  "C:/Games/Käfer/Käfer.exe", "C:/Games/readme.txt"));
}

TEST_F(DriveListingTest, ListsNothingThatWindowsCouldNotHave) {
    for (const char* const name : {"a:b", "a?", "dot.", "space ", "con", "not UTF-8 \xE4", "back\\slash"}) {
        pc.file(QByteArray("drives/D/") + name);
    }
    pc.file("drives/D/Same");
    pc.file("drives/D/same");
    EXPECT_THAT(QDir("D:/").entryList(everything), ElementsAre("Same"));
}

TEST_F(DriveListingTest, TakesNothingButFilesAndFolders) {
    pc.link("drives/D/device", "/dev/zero");
    ASSERT_EQ(::mkfifo(pc.path("drives/D/pipe").constData(), 0600), 0);
    EXPECT_FALSE(QFileInfo::exists("D:/device"));
    EXPECT_FALSE(QFileInfo::exists("D:/pipe"));
    EXPECT_FALSE(QFile("D:/pipe").open(QIODevice::ReadOnly));
}

// Links

TEST_F(DriveListingTest, TakesALinkForWhatItLeadsTo) {
    pc.link("drives/D/folder", "../C/Games");
    pc.link("drives/D/file", "../C/Games/readme.txt");
    EXPECT_TRUE(QFileInfo("D:/folder").isDir());
    EXPECT_FALSE(QFileInfo("D:/folder").isSymLink());
    EXPECT_TRUE(QFileInfo("D:/folder/readme.txt").isFile());
    EXPECT_EQ(QFileInfo("D:/file").size(), 5);
    EXPECT_THAT(QDir("D:/").entryList(everything), ElementsAre("file", "folder"));
}

TEST_F(DriveListingTest, DoesNotKnowALinkThatLeadsNowhere) {
    pc.link("drives/D/dead", "nowhere");
    EXPECT_FALSE(QFileInfo::exists("D:/dead"));
    EXPECT_THAT(QDir("D:/").entryList(everything), IsEmpty());
}

TEST_F(DriveListingTest, EndsEveryWalk) {
    pc.folder("drives/D/a/b");
    pc.link("drives/D/a/self", ".");
    pc.link("drives/D/a/b/up", "../..");
    pc.link("drives/D/a/b/other", "../../c");
    pc.folder("drives/D/c");
    pc.link("drives/D/c/back", "../a");
    pc.link("drives/D/loop", "loop");
    EXPECT_THAT(walk("D:/"),
                UnorderedElementsAre("D:/a", "D:/a/b", "D:/a/b/other", "D:/c", "D:/c/back", "D:/c/back/b"));
    EXPECT_EQ(walk("D:/", QDirIterator::Subdirectories | QDirIterator::FollowSymlinks).size(), 6);
}

TEST_F(DriveListingTest, LosesOnlyWhatCannotBeRead) {
    pc.file("drives/D/locked/x");
    pc.file("drives/D/open");
    namespace fs = std::filesystem;
    fs::permissions(pc.path("drives/D/locked").toStdString(), fs::perms::none);
    EXPECT_TRUE(QFileInfo("D:/locked").isDir());
    EXPECT_THAT(QDir("D:/").entryList(everything), ElementsAre("locked", "open"));
    fs::permissions(pc.path("drives/D/locked").toStdString(), fs::perms::owner_all);
}

} // namespace
