#include "platform/Files.h"
#include "platform/TextStream.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "recordings/Utf16Text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class FilesTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return QDir::toNativeSeparators(folder.filePath(name)); }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray read(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    const TestPc pc;
    const QTemporaryDir folder;
};

TEST_F(FilesTest, TheSizeOfAMissingFileIsMinusOne) {
    EXPECT_EQ(Platform::fileSize(path("missing")), -1);
    EXPECT_EQ(Platform::fileSize(""), -1);
    write("Größe", "12345");
    EXPECT_EQ(Platform::fileSize(path("Größe")), 5);
}

TEST_F(FilesTest, AFolderIsMadeWithTheFoldersOnTheWay) {
    EXPECT_TRUE(Platform::createFolder(path("a/b/ç")));
    EXPECT_TRUE(QDir(folder.filePath("a/b/ç")).exists());
    EXPECT_FALSE(Platform::createFolder(path("a/b/ç"))) << "it is there already";
    EXPECT_TRUE(Platform::createFolder(path("d/e/")));
    EXPECT_TRUE(QDir(folder.filePath("d/e")).exists());
    write("file", "");
    for (const QString& refused : {path("file/below"), QString("relative"), QString()}) {
        EXPECT_FALSE(Platform::createFolder(refused)) << refused.toStdString();
    }
}

TEST_F(FilesTest, DeletingTellsWhetherThereWasAFile) {
    write("file", "");
    EXPECT_TRUE(Platform::deleteFile(path("file")));
    EXPECT_EQ(read("file"), "(missing)");
    EXPECT_FALSE(Platform::deleteFile(path("file")));
    ASSERT_TRUE(Platform::createFolder(path("folder")));
    EXPECT_FALSE(Platform::deleteFile(path("folder")));
}

TEST_F(FilesTest, MovingReplacesAnExistingFile) {
    write("new", "new");
    write("old", "old");
    EXPECT_TRUE(Platform::moveFile(path("new"), path("old")));
    EXPECT_EQ(read("old"), "new");
    EXPECT_EQ(read("new"), "(missing)");
    EXPECT_FALSE(Platform::moveFile(path("new"), path("old")));
    EXPECT_EQ(read("old"), "new");
}

TEST_F(FilesTest, TextIsWrittenInUtf8WithWindowsLineEnds) {
    auto stream = Platform::openShared(path("text"), "at");
    ASSERT_TRUE(stream);
    stream->write("Käfer ");
    stream->write("競走\n\n");
    stream->write("\xF0\x9F\x8E\xAE"
                  "\n");
    stream->flush();
    EXPECT_EQ(read("text"), "Käfer 競走\r\n\r\n\xF0\x9F\x8E\xAE\r\n") << "on disk before it is closed";
}

TEST_F(FilesTest, AppendingKeepsWhatIsThere) {
    write("text", "old\r\n");
    Platform::openShared(path("text"), "at")->write("new\n");
    EXPECT_EQ(read("text"), "old\r\nnew\r\n");
}

TEST_F(FilesTest, WritingFromTheStartEmptiesTheFile) {
    write("text", "old\r\n");
    Platform::openShared(path("text"), "wt")->write("new\n");
    EXPECT_EQ(read("text"), "new\r\n");
}

TEST_F(FilesTest, SeveralStreamsMayAppendToOneFile) {
    auto first = Platform::openShared(path("text"), "at");
    auto second = Platform::openShared(path("text"), "at");
    ASSERT_TRUE(first && second);
    first->write("1\n");
    first->flush();
    second->write("2\n");
    second->flush();
    first->write("3\n");
    first->flush();
    EXPECT_EQ(read("text"), "1\r\n2\r\n3\r\n");
}

TEST_F(FilesTest, UnicodeTextBeginsWithOneByteOrderMark) {
    for (const char* line : {"Käfer 競走\n", "\xF0\x9F\x8E\xAE\n"}) {
        auto stream = Platform::openShared(path("text"), "at, ccs=UNICODE");
        ASSERT_TRUE(stream);
        stream->write(line);
    }
    EXPECT_EQ(read("text"),
              Recordings::toUtf16(QChar(0xFEFF) + QString::fromUtf8("Käfer 競走\r\n\xF0\x9F\x8E\xAE\r\n")));
}

TEST_F(FilesTest, UnicodeTextFromTheStartBeginsAnew) {
    write("text", "old");
    Platform::openShared(path("text"), "wt, ccs=UNICODE")->write("x\n");
    EXPECT_EQ(read("text"), Recordings::toUtf16(QChar(0xFEFF) + QString("x\r\n")));
}

TEST_F(FilesTest, AFolderCannotBeOpenedAsAFile) {
    EXPECT_TRUE(Platform::createFolder(path("folder")));
    EXPECT_FALSE(Platform::openShared(path("folder"), "at"));
    EXPECT_FALSE(Platform::openShared(path("no/such/folder/file"), "at"));
}

} // namespace
