#include "recordings/DrivePath.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Recordings::DrivePath;

/// The path taken apart and put together again; "(none)" without a drive, "(bad)" when no file can have the name.
QString parsed(const QString& path) {
    const std::optional<DrivePath> result = DrivePath::parse(path);
    if (!result) {
        return "(none)";
    }
    return result->isValid ? result->text() : "(bad)";
}

TEST(DrivePathTest, TakesPathsWithADriveOnly) {
    EXPECT_EQ(parsed("C:\\Games\\X"), "C:/Games/X");
    EXPECT_EQ(parsed("z:/Games/X"), "z:/Games/X");
    EXPECT_EQ(parsed("\\\\?\\C:\\Games"), "C:/Games");
    EXPECT_EQ(parsed("\\\\.\\C:\\a\\..\\Games"), "C:/Games");
    EXPECT_EQ(parsed("//./C:/Games"), "C:/Games");
    for (const char* const path : {"", "C", "/C:/x", "\\\\server\\share", "//?/C:/x", "1:/x", "ä:/x", ":/x", "Games\\X",
                                   "\\\\?\\Volume{00000000-0000-0000-0000-000000000000}\\x"}) {
        EXPECT_EQ(parsed(path), "(none)") << path;
    }
}

TEST(DrivePathTest, TakesTheRootFromEverySpelling) {
    for (const char* const path : {"C:", "C:/", "C:\\", "C:\\\\", "C:/.", "C:/..", "C:/../..", "C:/x/..", "C:/..."}) {
        EXPECT_EQ(parsed(path), "C:/") << path;
    }
    EXPECT_TRUE(DrivePath::parse("C:")->isRoot());
    EXPECT_EQ(parsed("C:x"), "C:/x");
}

TEST(DrivePathTest, WorksDotsAndSeparatorsOut) {
    EXPECT_EQ(parsed("C:\\a\\\\b/./c/../d\\"), "C:/a/b/d");
    EXPECT_EQ(parsed("C:/a/../../b"), "C:/b");
}

TEST(DrivePathTest, DropsDotsAndSpacesWhereWindowsDoes) {
    EXPECT_EQ(parsed("C:/a./b"), "C:/a/b");
    EXPECT_EQ(parsed("C:/a/b."), "C:/a/b");
    EXPECT_EQ(parsed("C:/a/b. ."), "C:/a/b");
    EXPECT_EQ(parsed("C:/a/b "), "(bad)") << "Qt puts the space back";
    EXPECT_EQ(parsed("C:/a /b"), "(bad)");
    EXPECT_EQ(parsed("C:/a../b"), "(bad)");
}

TEST(DrivePathTest, RefusesNamesThatWindowsForbids) {
    for (const char* const path : {"C:/a?", "C:/*", "C:/a<b", "C:/a>b", "C:/a|b", "C:/a\"b", "C:/a:b", "C:/a\tb",
                                   "C:/con", "C:/x/NUL", "C:/Com1", "C:/lpt9"}) {
        EXPECT_EQ(parsed(path), "(bad)") << path;
    }
    EXPECT_EQ(parsed("C:/console/com0/con.txt"), "C:/console/com0/con.txt");
    EXPECT_EQ(parsed(QString("C:/a") + QChar(0)), "(bad)");
}

TEST(DrivePathTest, KnowsAPathThatMeansAFolder) {
    EXPECT_TRUE(DrivePath::parse("C:\\a\\")->isFolderOnly);
    EXPECT_FALSE(DrivePath::parse("C:\\a")->isFolderOnly);
}

} // namespace
