#include "find/record/DriveRecord.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Host::DriveRecord;
using Kind = DriveRecord::Kind;

Recordings::DrivePath path(const QString& text) {
    return *Recordings::DrivePath::parse(text);
}

TEST(DriveRecord, HasTheFoldersOnTheWay) {
    DriveRecord record;
    record.addFile(path("D:\\Games\\X\\x.exe"));
    EXPECT_EQ(record.paths(), (QStringList{"D:", "D:/Games", "D:/Games/X", "D:/Games/X/x.exe"}));
    EXPECT_EQ(record.count(Kind::Folder), 3);
    EXPECT_EQ(record.count(Kind::File), 1);
}

TEST(DriveRecord, NamesThatDifferInCaseAreOne) {
    DriveRecord record;
    record.addFile(path("d:\\GAMES\\a"));
    record.addFile(path("D:\\games\\b"));
    EXPECT_EQ(record.paths(), (QStringList{"D:", "D:/GAMES", "D:/GAMES/a", "D:/GAMES/b"}));
    record.spell(path("D:\\Games"));
    EXPECT_EQ(record.paths(), (QStringList{"D:", "D:/Games", "D:/Games/a", "D:/Games/b"}));
    record.spell(path("D:\\missing"));
    EXPECT_EQ(record.entries().size(), 4U);
}

TEST(DriveRecord, WhatIsKnownOfAFileStays) {
    DriveRecord record;
    record.addContents(path("C:\\a.item"), "{}");
    record.addFile(path("C:\\A.ITEM"));
    record.addShortcut(path("C:\\s.lnk"), "C:/x.exe");
    record.addFile(path("C:\\s.lnk"));
    EXPECT_EQ(record.count(Kind::ReadFile), 1);
    EXPECT_EQ(record.count(Kind::Shortcut), 1);
    EXPECT_EQ(record.entries().at("C:/A.ITEM").contents, "{}");
    EXPECT_EQ(record.entries().at("C:/S.LNK").target, "C:/x.exe");
}

TEST(DriveRecord, AFolderStaysOne) {
    DriveRecord record;
    record.addFile(path("C:\\x.lnk"));
    record.addFolder(path("C:\\f.lnk"));
    record.addShortcut(path("C:\\f.lnk"), "");
    record.addFile(path("C:\\x.lnk\\y"));
    EXPECT_EQ(record.count(Kind::Folder), 3) << "the drive, and both";
    EXPECT_EQ(record.count(Kind::File), 1);
}

TEST(DriveRecord, HasADrivesRootAlone) {
    DriveRecord record;
    record.addFolder(path("c:/"));
    record.spell(path("c:/"));
    EXPECT_EQ(record.paths(), QStringList{"C:"});
}

} // namespace
