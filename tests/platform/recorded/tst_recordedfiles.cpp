#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/Files.h"
#include "platform/TextStream.h"
#include "recordings/Utf16Text.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

/// This library's own files, with the recorded PC in view. The rest of what they do is tested in both worlds.
class RecordedFilesTest : public ::testing::Test {
protected:
    RecordedFilesTest() {
        pc.file("drives/C/x.log", "12345");
        pc.choose();
    }

    QString own(const QByteArray& name) const { return pc.path("own-" + name); }

    RecordingFolder pc;
};

TEST_F(RecordedFilesTest, ReplacesWhatIsNoUtf8) {
    Platform::openShared(own("log"), "wt, ccs=UNICODE")->write("a\xFFz\xC3(\xED\xA0\x80\xF8\xE2\x82");
    QFile file(own("log"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(Recordings::fromUtf16(file.readAll()),
              QChar(0xFEFF) + QString("a\uFFFDz\uFFFD(\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"));
}

TEST_F(RecordedFilesTest, LeavesTheRecordingAlone) {
    Platform::openShared(own("a"), "wt")->write("a");
    EXPECT_FALSE(Platform::openShared("C:\\x.log", "at"));
    EXPECT_FALSE(Platform::openShared("C:\\new.log", "wt"));
    EXPECT_FALSE(Platform::createFolder("C:\\new"));
    EXPECT_FALSE(Platform::deleteFile("C:\\x.log"));
    EXPECT_FALSE(Platform::moveFile("C:\\x.log", own("b")));
    EXPECT_FALSE(Platform::moveFile(own("a"), "C:\\x.log"));
    EXPECT_EQ(Platform::fileSize("C:\\X.LOG"), 5);
    EXPECT_EQ(Platform::fileSize("C:\\none"), -1);
}

} // namespace
