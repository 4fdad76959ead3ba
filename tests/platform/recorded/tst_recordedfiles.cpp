#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/Files.h"
#include "platform/TextStream.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

/// This library's own files, with the recorded PC in view.
class RecordedFilesTest : public ::testing::Test {
protected:
    RecordedFilesTest() {
        pc.file("drives/C/x.log", "12345");
        pc.choose();
    }

    QString path(const QByteArray& name) const { return pc.path("own-" + name); }

    QByteArray contents(const QByteArray& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    void write(const QByteArray& name, const char* mode, std::string_view text) const {
        const auto stream = Platform::openShared(path(name), mode);
        ASSERT_TRUE(stream);
        stream->write(text);
    }

    RecordingFolder pc;
};

TEST_F(RecordedFilesTest, EndsLinesAsWindowsDoes) {
    write("log", "wt", "one\ntwo\n\nthree");
    EXPECT_EQ(contents("log"), "one\r\ntwo\r\n\r\nthree");
}

TEST_F(RecordedFilesTest, AppendsOrBeginsAnew) {
    write("log", "at", "one");
    write("log", "at", "two");
    EXPECT_EQ(contents("log"), "onetwo");
    write("log", "wt", "three");
    EXPECT_EQ(contents("log"), "three");
}

TEST_F(RecordedFilesTest, WritesUtf16AfterAMark) {
    write("log", "at, ccs=UNICODE", "a\n");
    EXPECT_EQ(contents("log"), QByteArray("\xFF\xFE"
                                          "a\0\r\0\n\0",
                                          8));
    write("log", "at, ccs=UNICODE", "ß");
    EXPECT_EQ(contents("log").mid(8), QByteArray("\xDF\0", 2)) << "a file that exists has its mark";
    write("log", "wt, ccs=UNICODE", "𝄞");
    EXPECT_EQ(contents("log"), "\xFF\xFE\x34\xD8\x1E\xDD");
}

TEST_F(RecordedFilesTest, ReplacesWhatIsNoUtf8) {
    const std::string_view bad = "a\xFFz\xC3(\xED\xA0\x80\xF8\xE2\x82";
    write("log", "wt, ccs=UNICODE", bad);
    EXPECT_EQ(QString::fromUtf16(reinterpret_cast<const ushort*>(contents("log").append(2, '\0').constData()) + 1),
              "a\uFFFDz\uFFFD(\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST_F(RecordedFilesTest, SharesAFileBetweenStreams) {
    const auto first = Platform::openShared(path("log"), "at");
    const auto second = Platform::openShared(path("log"), "at");
    first->write("1\n");
    first->flush();
    second->write("2\n");
    second->flush();
    first->write("3\n");
    first->flush();
    EXPECT_EQ(contents("log"), "1\r\n2\r\n3\r\n");
}

TEST_F(RecordedFilesTest, OpensNothingWhereThereIsNoFolder) {
    EXPECT_FALSE(Platform::openShared(path("none") + "/log", "at"));
}

TEST_F(RecordedFilesTest, TellsSizes) {
    write("log", "wt", "123");
    EXPECT_EQ(Platform::fileSize(path("log")), 3);
    EXPECT_EQ(Platform::fileSize(path("none")), -1);
    EXPECT_EQ(Platform::fileSize("C:\\X.LOG"), 5);
    EXPECT_EQ(Platform::fileSize("C:\\none"), -1);
}

TEST_F(RecordedFilesTest, MakesFoldersOnce) {
    EXPECT_TRUE(Platform::createFolder(path("a") + "/b/c/"));
    EXPECT_TRUE(QFileInfo(path("a") + "/b/c").isDir());
    EXPECT_FALSE(Platform::createFolder(path("a") + "/b/c"));
    EXPECT_FALSE(Platform::createFolder("relative"));
    write("file", "wt", "");
    EXPECT_FALSE(Platform::createFolder(path("file") + "/x"));
    EXPECT_FALSE(Platform::createFolder({}));
}

TEST_F(RecordedFilesTest, MovesOverAFile) {
    write("a", "wt", "a");
    write("b", "wt", "b");
    EXPECT_TRUE(Platform::moveFile(path("a"), path("b")));
    EXPECT_EQ(contents("b"), "a");
    EXPECT_EQ(contents("a"), "(none)");
    EXPECT_FALSE(Platform::moveFile(path("a"), path("b")));
}

TEST_F(RecordedFilesTest, DeletesAFile) {
    write("a", "wt", "a");
    EXPECT_TRUE(Platform::deleteFile(path("a")));
    EXPECT_FALSE(Platform::deleteFile(path("a")));
    ASSERT_TRUE(Platform::createFolder(path("folder")));
    EXPECT_FALSE(Platform::deleteFile(path("folder")));
}

TEST_F(RecordedFilesTest, LeavesTheRecordingAlone) {
    write("a", "wt", "a");
    EXPECT_FALSE(Platform::openShared("C:\\x.log", "at"));
    EXPECT_FALSE(Platform::openShared("C:\\new.log", "wt"));
    EXPECT_FALSE(Platform::createFolder("C:\\new"));
    EXPECT_FALSE(Platform::deleteFile("C:\\x.log"));
    EXPECT_FALSE(Platform::moveFile("C:\\x.log", path("b")));
    EXPECT_FALSE(Platform::moveFile(path("a"), "C:\\x.log"));
    EXPECT_EQ(Platform::fileSize("C:\\x.log"), 5);
}

} // namespace
