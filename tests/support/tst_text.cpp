#include "support/Paths.h"
#include "support/Text.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>

#include <gtest/gtest.h>

namespace {

TEST(Unquote, TakesAPathOutOfItsQuotes) {
    EXPECT_EQ(Text::unquote("\"C:\\Program Files\\X\\x.exe\""), "C:\\Program Files\\X\\x.exe");
}

TEST(Unquote, TakesTheLastCharacterWhateverItIs) {
    EXPECT_EQ(Text::unquote("\"abc"), "ab");
    EXPECT_EQ(Text::unquote("\"C:\\x.exe\" -silent"), "C:\\x.exe\" -silen");
}

TEST(Unquote, LeavesTextThatDoesNotBeginWithAQuoteAlone) {
    EXPECT_EQ(Text::unquote("abc\""), "abc\"");
    EXPECT_EQ(Text::unquote(" \"abc\""), " \"abc\"");
    EXPECT_EQ(Text::unquote("'abc'"), "'abc'");
    EXPECT_EQ(Text::unquote(""), "");
}

TEST(Unquote, MakesNothingOfALoneQuote) {
    EXPECT_EQ(Text::unquote("\""), "");
    EXPECT_EQ(Text::unquote("\"\""), "");
}

TEST(Paths, AWindowsPathTakesBackslashes) {
    EXPECT_EQ(Paths::join("C:/Games/X", "bin\\x.exe"), "C:/Games/X\\bin\\x.exe");
    EXPECT_EQ(Paths::join("d:\\Games\\", "x.exe"), "d:\\Games\\\\x.exe") << "one separator is always added";
    EXPECT_EQ(Paths::join("\\\\server\\share", "x.exe"), "\\\\server\\share\\x.exe");
    EXPECT_EQ(Paths::toNative("C:/Games/Übung/x.exe"), "C:\\Games\\Übung\\x.exe");
    EXPECT_EQ(Paths::toNative("\\\\?\\Volume{1}\\a/b"), "\\\\?\\Volume{1}\\a\\b");
}

TEST(Paths, AnyOtherPathIsTheSystemsOwn) {
    EXPECT_EQ(Paths::join("/opt/x", "y"), QString("/opt/x") + QDir::separator() + "y");
    EXPECT_EQ(Paths::toNative("/opt/x"), QDir::toNativeSeparators("/opt/x"));
    EXPECT_EQ(Paths::toNative("1:/x"), QDir::toNativeSeparators("1:/x"));
    EXPECT_EQ(Paths::separatorFor(""), QDir::separator());
}

TEST(Paths, CleaningTakesEitherSeparator) {
    EXPECT_EQ(Paths::cleaned("C:\\Games/X\\.\\Y\\..\\\\Z\\"), "C:\\Games\\X\\Z");
    EXPECT_EQ(Paths::cleaned("C:\\"), "C:\\");
    EXPECT_EQ(Paths::cleaned("C:/X/.."), "C:\\");
    EXPECT_EQ(Paths::cleaned("\\\\server\\share\\.\\X\\"), "\\\\server\\share\\X");
    EXPECT_EQ(Paths::cleaned(""), "");
    EXPECT_EQ(Paths::cleaned("/opt//x/../y/"), QDir::toNativeSeparators("/opt/y"));
}

TEST(Paths, TheFolderOfAPathHasForwardSlashes) {
    const TestPc pc;
    EXPECT_EQ(Paths::absoluteFolderOf("C:\\Games/X\\x.exe"), "C:/Games/X");
    EXPECT_EQ(Paths::absoluteFolderOf("c:\\Games\\..\\X\\x.exe"), "C:/X");
    EXPECT_EQ(Paths::absoluteFolderOf("C:\\Games\\X\\x.exe /S"), "C:/Games/X/x.exe ");
    EXPECT_EQ(Paths::absoluteFolderOf("C:\\x.exe"), "C:/");
    EXPECT_EQ(Paths::absoluteFolderOf("\\\\server\\share\\X\\x.exe"), "//server/share/X");
    EXPECT_EQ(Paths::absoluteFolderOf("//server/share/X/x.exe"), "//server/share/X");
    EXPECT_EQ(Paths::absoluteFolderOf("x.exe"), QDir::currentPath());
    EXPECT_EQ(Paths::absoluteFolderOf("sub\\x.exe"), QDir::currentPath() + "/sub");
    EXPECT_EQ(Paths::absoluteFolderOf(""), "");
}

} // namespace
