#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

/// No file may grow beyond `size` bytes while this lives, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(qint64 size) {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{static_cast<rlim_t>(size), m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }

    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    Q_DISABLE_COPY_MOVE(FullDisk)

    rlimit m_before{};
};

TEST(FullDiskTest, KeepsWhatWasWrittenAndTakesLinesAgainWhenItHasRoom) {
    const TestPc pc;
    {
        Logger logger = Logger::create("Test");
        logger.logAlways("before");
        {
            const FullDisk disk(QFileInfo(pc.logPath("Test")).size());
            for (int line = 0; line < 100; ++line) {
                logger.logAlways("while it is full %d", line);
            }
            EXPECT_EQ(pc.messages("Test"), QStringList{"A: before"});
        }
        logger.logAlways("one whose beginning may be lost");
        logger.logAlways("after");
    }
    EXPECT_EQ(pc.messages("Test").first(), "A: before");
    EXPECT_EQ(pc.messages("Test").last(), "A: after");
    EXPECT_EQ(pc.log("Test").count("LOG DESTROYED"), 1);
}

TEST(FullDiskTest, ALoggerThatIsMadeAndGoesOnItWritesNothing) {
    const TestPc pc;
    ASSERT_TRUE(QDir().mkpath(pc.logFolder()));
    {
        const FullDisk disk(0);
        Logger::create("Test").logAlways("lost");
    }
    EXPECT_EQ(pc.log("Test"), "");
    { Logger::create("Test").logAlways("written"); }
    EXPECT_EQ(pc.messages("Test"), QStringList{"A: written"});
}

// Root may write to any folder, but not to this one.
TEST(ReadOnlyFolderTest, IsNoReasonToFail) {
    const TestPc pc;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/proc/self");
    { Logger::create("Test").logAlways("lost"); }
    EXPECT_FALSE(QFileInfo::exists(pc.logFolder()));
    qputenv("XDG_DATA_HOME", before);
    { Logger::create("Test").logAlways("written"); }
    EXPECT_EQ(pc.messages("Test"), QStringList{"A: written"});
}

} // namespace
