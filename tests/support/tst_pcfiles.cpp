#include "support/Files.h"
#include "support/Paths.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

/// A PC with one file, "abc". The current folder is the root of its drive.
class PcFiles : public ::testing::Test {
protected:
    PcFiles() {
        pc.file("C:\\Luruludri Test\\a.txt", "abc");
        QDir::setCurrent("C:\\");
    }

    ~PcFiles() override { QDir::setCurrent(before); }

    static QString entered(QString folder, const QString& name) {
        return Files::enter(folder, name) ? Paths::absoluteFolder(folder) : "(not there)";
    }

    TestPc pc;
    const QString before = QDir::currentPath();
};

TEST_F(PcFiles, AreFoundByEverySpellingOfTheirPath) {
    for (const char* const path :
         {"C:\\Luruludri Test\\a.txt", "c:/luruludri test//./A.TXT", "\\\\?\\C:\\Luruludri Test\\a.txt",
          "\\\\.\\C:\\Luruludri Test\\a.txt", "//./C:/Luruludri Test/a.txt", "C:Luruludri Test\\a.txt",
          "\\Luruludri Test\\a.txt", "/Luruludri Test/a.txt"}) {
        EXPECT_TRUE(Files::exists(path)) << path;
        EXPECT_EQ(Files::readWholeFile(path), "abc") << path;
    }
}

TEST_F(PcFiles, AreListedByTheirEndingsWithoutHiddenOnesAndFolders) {
    const QString folder = "C:\\Luruludri Test\\Listed";
    for (const char* const name : {"b.acf", "A.ACF", "a.acf.bak", "acf", ".acf", "c.acf ", "sys.acf", "hid.acf"}) {
        pc.file(folder + "\\" + name);
    }
    pc.folder(folder + "\\folder.acf");
    pc.hide(folder + "\\hid.acf");
    pc.makeSystem(folder + "\\sys.acf");
    const QStringList byQt = QDir(Platform::pathOnPc(folder)).entryList({"*.acf"}, QDir::Files, QDir::Unsorted);
    EXPECT_EQ(Files::names(folder, ".acf"), byQt);
    EXPECT_THAT(byQt, IsSupersetOf({QString("b.acf"), QString("A.ACF"), QString("sys.acf")}));
    EXPECT_THAT(byQt, AllOf(Not(Contains("hid.acf")), Not(Contains("folder.acf")), Not(Contains("a.acf.bak"))));
    EXPECT_EQ(Files::names(folder + "\\missing", ".acf"), QStringList());
}

TEST_F(PcFiles, AreListedThroughLinksAndByNamesBeyondTheBasicPlane) {
    const QString folder = "C:\\Luruludri Test\\Linked";
    pc.file(folder + "\\plain.acf");
    pc.file(folder + QString::fromUtf8("\\\xF0\x9F\x8E\xAE.acf"));
    pc.folder("C:\\Luruludri Test\\Target");
    pc.link(folder + "\\link.acf", "C:\\Luruludri Test\\Target");
    const QStringList byQt = QDir(Platform::pathOnPc(folder)).entryList({"*.acf"}, QDir::Files, QDir::Unsorted);
    EXPECT_EQ(Files::names(folder, ".acf"), byQt);
    EXPECT_THAT(byQt, UnorderedElementsAre("plain.acf", QString::fromUtf8("\xF0\x9F\x8E\xAE.acf")));
}

TEST_F(PcFiles, AreReadWholeWhateverTheirSize) {
    const QString path = "C:\\Luruludri Test\\sized.bin";
    for (const int size : {0, 1, 8191, 8192, 8193, 100'000}) {
        QByteArray bytes;
        for (int i = 0; i < size; ++i) {
            bytes.append(static_cast<char>(i % 251));
        }
        pc.file(path, bytes);
        EXPECT_TRUE(Files::readWholeFile(path) == bytes) << size;
        EXPECT_TRUE(Files::readWholeFile(path, size) == bytes) << size;
        EXPECT_EQ(Files::readWholeFile(path, size - 1), "") << size;
    }
}

TEST_F(PcFiles, AreNotFoundByPathsThatQtDoesNotKnow) {
    for (const char* const path :
         {"//?/C:/Luruludri Test/a.txt", "\\\\?\\UNC\\C:\\Luruludri Test\\a.txt", "/C:/Luruludri Test/a.txt",
          "\\\\no such computer\\Luruludri Test\\a.txt", "D:Luruludri Test\\a.txt", "C:\\Luruludri Test\\a.txt ", ""}) {
        EXPECT_FALSE(Files::exists(path)) << path;
        EXPECT_EQ(Files::readWholeFile(path), "") << path;
    }
}

TEST_F(PcFiles, LieInFoldersOfEverySpelling) {
    for (const char* const path : {"C:\\Luruludri Test", "C:/Luruludri Test/", "\\\\?\\C:\\Luruludri Test\\",
                                   "\\\\.\\C:\\Luruludri Test", "C:Luruludri Test", "\\Luruludri Test"}) {
        EXPECT_TRUE(Files::folderExists(path)) << path;
        EXPECT_THAT(Files::names(path, ".txt"), ElementsAre("a.txt")) << path;
    }
    for (const char* const path :
         {"//?/C:/Luruludri Test", "\\\\no such computer\\Luruludri Test", "C:\\Luruludri Test\\a.txt"}) {
        EXPECT_FALSE(Files::folderExists(path)) << path;
        EXPECT_THAT(Files::names(path, ".txt"), IsEmpty()) << path;
    }
    EXPECT_TRUE(Files::folderExists("C:\\"));
    EXPECT_TRUE(Files::folderExists("C:"));
    EXPECT_TRUE(Files::folderExists("\\"));
}

TEST_F(PcFiles, FoldersAreEnteredAsQtDoes) {
    pc.folder("C:\\Luruludri Test\\sub");
    EXPECT_EQ(entered("C:/Luruludri Test", "sub"), "C:/Luruludri Test/sub");
    EXPECT_EQ(entered("C:/Luruludri Test", "SUB/../sub"), "C:/Luruludri Test/sub");
    EXPECT_EQ(entered("C:/Luruludri Test", "sub\\..\\sub"), "C:/Luruludri Test/sub");
    EXPECT_EQ(entered("C:\\Luruludri Test\\sub\\", ".."), "C:/Luruludri Test");
    EXPECT_EQ(entered("c:/Luruludri Test", "sub"), "c:/Luruludri Test/sub");
    EXPECT_EQ(entered("D:/", "C:\\Luruludri Test"), "C:/Luruludri Test");
    EXPECT_EQ(entered("C:\\none", ""), "C:/none") << "where one is already";
    EXPECT_EQ(entered("C:\\none", "."), "C:/none");
    for (const char* const name :
         {"none", "a.txt", "../..", "../../Luruludri Test", "sub ", "\\\\no such computer\\x"}) {
        EXPECT_EQ(entered("C:/Luruludri Test", name), "(not there)") << name;
    }
    EXPECT_EQ(entered("C:\\", ".."), "(not there)") << "there is nothing above a root";
    QString folder = "C:\\Luruludri Test\\";
    EXPECT_FALSE(Files::enter(folder, "none"));
    EXPECT_EQ(folder, "C:\\Luruludri Test\\");
}

} // namespace
