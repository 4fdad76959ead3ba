#include "support/Trace.h"

#include "common/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class TraceLinks : public ::testing::Test {
protected:
    ~TraceLinks() override { Trace::begin(Trace::Origin()); }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QByteArray bytesOfPath(const QString& name) const { return path(name).toUtf8(); }

    static bool isFollowed(const QString& file) {
        Trace::begin({nullptr, file, false});
        Trace::note("lost");
        return Trace::isOn();
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(TraceLinks, ALinkIsNotFollowed) {
    QFile target(path("target"));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.close();
    ASSERT_TRUE(QFile::link(path("target"), path("link")));
    EXPECT_FALSE(isFollowed(path("link")));
    EXPECT_EQ(QFileInfo(path("target")).size(), 0);
}

TEST_F(TraceLinks, ALinkToWhatIsMissingMakesNothing) {
    ASSERT_TRUE(QFile::link(path("target"), path("link")));
    EXPECT_FALSE(isFollowed(path("link")));
    EXPECT_FALSE(QFileInfo::exists(path("target")));
}

TEST_F(TraceLinks, APipeDoesNotHoldTheHostUp) {
    ASSERT_EQ(::mkfifo(bytesOfPath("pipe").constData(), 0600), 0);
    EXPECT_FALSE(isFollowed(path("pipe"))) << "without a reader";
    const int reader = ::open(bytesOfPath("pipe").constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    EXPECT_FALSE(isFollowed(path("pipe")));
    ::close(reader);
}

TEST_F(TraceLinks, ADeviceIsLeftAlone) {
    EXPECT_FALSE(isFollowed("/dev/null"));
    EXPECT_FALSE(isFollowed("/dev/full"));
}

TEST_F(TraceLinks, ANewFileIsItsUsersOnly) {
    ASSERT_TRUE(isFollowed(path("trace")));

    struct stat info {};

    ASSERT_EQ(::stat(bytesOfPath("trace").constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
}

TEST_F(TraceLinks, ARecordedPcIsNotWrittenTo) {
    EXPECT_FALSE(isFollowed("C:\\trace"));
    EXPECT_FALSE(QFileInfo::exists(QDir::currentPath() + "/C:\\trace"));
}

} // namespace
