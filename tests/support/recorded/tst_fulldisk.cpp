#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/recorded/FileLimit.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

TEST(FullDiskTest, KeepsWhatWasWrittenAndTakesLinesAgainWhenItHasRoom) {
    const TestPc pc;
    {
        Logger logger = Logger::create("Test");
        logger.logAlways("before");
        {
            const FileLimit disk(QFileInfo(pc.logPath("Test")).size());
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
        const FileLimit disk(0);
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
