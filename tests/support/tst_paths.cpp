#include "support/Paths.h"

#include "common/PcTest.h"
#include "common/QtPrinters.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

/// What Qt makes of a path on Windows; null where it depends on the current folder.
struct PathCase {
    const char* path;
    const char* cleaned;        ///< by cleanPath, then toNativeSeparators
    const char* absoluteFolder; ///< QFileInfo::absolutePath
    const char* folder;         ///< QDir::absolutePath
};

constexpr PathCase cases[] = {
    {"C:\\Games\\X\\x.exe", "C:\\Games\\X\\x.exe", "C:/Games/X", "C:/Games/X/x.exe"},
    {"C:\\Games/X\\.\\Y\\..\\\\Z\\", "C:\\Games\\X\\Z", "C:/Games/X/Z", "C:/Games/X/Z"},
    {"\\\\?\\D:\\SteamVR\\", "D:\\SteamVR", "D:/SteamVR", "D:/SteamVR"},
    {"\\\\?\\D:\\a\\..\\b", "D:\\b", "D:/", "D:/b"},
    {"\\\\?\\Volume{1}\\a", "Volume{1}\\a", nullptr, nullptr},
    {"//?/C:/x", "\\\\?\\C:\\x", "C:/", "C:/x"},
    {"\\\\.\\C:\\x", "\\\\.\\C:\\x", "//./C:", "//./C:/x"},
    {"\\\\.\\C:\\a\\..\\x", "\\\\.\\C:\\x", "//./C:", "//./C:/x"},
    {"\\\\server", "\\\\server", "/", "//server"},
    {"\\\\server\\", "\\\\server", "//server", "//server"},
    {"\\\\server\\share\\.\\X\\", "\\\\server\\share\\X", "//server/share/X", "//server/share/X"},
    {"\\\\server\\share\\X\\x.exe", "\\\\server\\share\\X\\x.exe", "//server/share/X", "//server/share/X/x.exe"},
    {"\\\\server\\..\\x", "\\\\server\\..\\x", "//server/..", "//server/../x"},
    {"\\\\server\\share\\..\\..\\x", "\\\\server\\..\\x", "//server/share", "//server/share/x"},
    {"C:", "C:", "C:/", "C:"},
    {"C:.", "C:", "C:/", "C:."},
    {"C:x", "C:x", "C:/", "C:x"},
    {"C:x\\..\\y", "C:y", "C:/", "C:/y"},
    {"C:\\", "C:\\", "C:/", "C:/"},
    {"C:/X/..", "C:\\", "C:/", "C:/"},
    {"C:\\..\\x", "C:\\..\\x", "C:/", "C:/x"},
    {"/", "\\", nullptr, "/"},
    {"/x", "\\x", nullptr, "/x"},
    {"\\x\\..\\y\\", "\\y", nullptr, nullptr},
    {"", "", "", nullptr},
    {".", ".", nullptr, nullptr},
    {"a\\..", ".", nullptr, nullptr},
    {"..\\a\\..\\b", "..\\b", nullptr, nullptr},
    {"D:/a//b/./c/..", "D:\\a\\b", "D:/a", "D:/a/b"},
    {"d:\\x", "d:\\x", "D:/", "d:/x"},
    {"d:\\x\\..\\y\\z", "d:\\y\\z", "D:/y", "D:/y/z"},
    {"C:\\x ", "C:\\x ", "C:/", "C:/x "},
    {"C:\\x\\ ", "C:\\x\\ ", "C:/x", "C:/x/ "},
    {"C:\\a\\..\\x ", "C:\\x ", "C:/", "C:/x "},
    {"C:\\x.", "C:\\x.", "C:/", "C:/x."},
    {"C:\\a\\..\\x.\\y. .", "C:\\x.\\y. .", "C:/x", "C:/x/y"},
    {"C:\\Games\\X\\x.exe /S", "C:\\Games\\X\\x.exe \\S", "C:/Games/X/x.exe ", "C:/Games/X/x.exe /S"},
    {"C:\\Käfer\\競走\\..\\Ö", "C:\\Käfer\\Ö", "C:/Käfer", "C:/Käfer/Ö"},
    {"1:/x", "1:\\x", nullptr, nullptr},
};

/// Whose paths they are.
using PathsOfAPc = PcTest;

TEST_F(PathsOfAPc, AreCleaned) {
    for (const PathCase& c : cases) {
        EXPECT_EQ(Paths::cleaned(c.path), c.cleaned) << c.path;
    }
}

TEST_F(PathsOfAPc, LieInAFolder) {
    for (const PathCase& c : cases) {
        if (c.absoluteFolder != nullptr) {
            EXPECT_EQ(Paths::absoluteFolderOf(c.path), c.absoluteFolder) << c.path;
        }
    }
}

TEST_F(PathsOfAPc, AreFolders) {
    for (const PathCase& c : cases) {
        if (c.folder != nullptr) {
            EXPECT_EQ(Paths::absoluteFolder(c.path), c.folder) << c.path;
        }
    }
}

/// What QDir::absoluteFilePath makes of a name in a folder.
struct NameCase {
    const char* folder;
    const char* name;
    const char* path;
};

constexpr NameCase names[] = {
    {"C:\\Games\\", "bin\\x.exe", "C:/Games/bin\\x.exe"},
    {"C:/Games/../X", "x.exe", "C:/X/x.exe"},
    {"c:\\Games", "..\\x.exe", "c:/Games/..\\x.exe"},
    {"C:\\", "x", "C:/x"},
    {"C:/Games", "", "C:/Games"},
    {"C:/Games", "D:\\x", "D:\\x"},
    {"C:/Games", "D:x", "D:x"},
    {"C:/Games", "\\x", "C:\\x"},
    {"C:/Games", "/x", "C:/x"},
    {"C:/Games", "\\\\server\\share\\x", "\\\\server\\share\\x"},
    {"C:/Games", "\\\\?\\D:\\x", "\\\\?\\D:\\x"},
    {"\\\\server\\share\\Games", "x", "//server/share/Games/x"},
    {"\\\\server\\share\\Games", "\\x", "//server/share\\x"},
};

TEST_F(PathsOfAPc, AreMadeOfAFolderAndAName) {
    for (const NameCase& c : names) {
        EXPECT_EQ(Paths::absoluteFilePath(c.folder, c.name), c.path) << c.folder << " + " << c.name;
    }
}

TEST_F(PathsOfAPc, TakeABackslashAndAName) {
    EXPECT_EQ(Paths::join("C:/Games/X", "bin\\x.exe"), "C:/Games/X\\bin\\x.exe");
    EXPECT_EQ(Paths::join("d:\\Games\\", "x.exe"), "d:\\Games\\\\x.exe") << "one separator is always added";
    EXPECT_EQ(Paths::join("\\\\server\\share", "x.exe"), "\\\\server\\share\\x.exe");
    EXPECT_EQ(Paths::join("/opt/x", "x.exe"), "/opt/x\\x.exe");
    EXPECT_EQ(Paths::join("", "x.exe"), "\\x.exe");
}

TEST_F(PathsOfAPc, HaveBackslashesWhereNative) {
    EXPECT_EQ(Paths::toNative("C:/Games/Übung/x.exe"), "C:\\Games\\Übung\\x.exe");
    EXPECT_EQ(Paths::toNative("\\\\?\\Volume{1}\\a/b"), "\\\\?\\Volume{1}\\a\\b");
    EXPECT_EQ(Paths::toNative("/opt/x"), "\\opt\\x");
}

TEST(PathsOfNoPc, AreQtsOwn) {
    for (const char* const path : {"/opt//x/../y/", "C:\\x\\..\\y", "x.exe", "", "\\\\server\\x"}) {
        EXPECT_EQ(Paths::cleaned(path), QDir::toNativeSeparators(QDir::cleanPath(path))) << path;
        EXPECT_EQ(Paths::join(path, "y"), QString(path) + QDir::separator() + "y") << path;
        EXPECT_EQ(Paths::absoluteFolderOf(path), QFileInfo(path).absolutePath()) << path;
        EXPECT_EQ(Paths::absoluteFolder(path), QDir(path).absolutePath()) << path;
        EXPECT_EQ(Paths::absoluteFilePath(path, "y"), QDir(path).absoluteFilePath("y")) << path;
    }
}

} // namespace
