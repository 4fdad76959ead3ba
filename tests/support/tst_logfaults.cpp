#include "support/Logger.h"

#include "core/plugin/FindersFactory.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/GameLocation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

class LogFaultsTest : public ::testing::Test {
protected:
    LogFaultsTest() { TestPc::clearLogs(); }

    /// A file where the folder of the logs would be, which can't be made then, nor anything in it.
    static void blockFolder() {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(TestPc::logFolder()).path()));
        ASSERT_TRUE(QFile(TestPc::logFolder()).open(QIODevice::WriteOnly));
    }

    static void unblockFolder() { ASSERT_TRUE(QFile::remove(TestPc::logFolder())); }

    TestPc pc;
};

TEST_F(LogFaultsTest, WithoutAFolderForLogsGamesAreFoundAllTheSame) {
    pc.file("D:\\X\\x.exe");
    blockFolder();
    {
        Finders::FindersFactory factory;
        GameLocation location;
        EXPECT_TRUE(factory.createFolderFinder("D:\\X", {"x.exe"})->find(location));
        EXPECT_FALSE(factory.createUninstallFinder("X", {"x.exe"}, 0)->find(location));
        EXPECT_FALSE(factory.createSteamFinder("1", "X", {"x.exe"})->find(location));
    }
    EXPECT_TRUE(QFileInfo(pc.logFolder()).isFile());
    unblockFolder();
}

TEST_F(LogFaultsTest, AFolderThatCouldNotBeMadeIsWrittenToAsSoonAsItIsThere) {
    blockFolder();
    {
        Logger logger = Logger::create("Test");
        logger.logAlways("lost");
        unblockFolder();
        logger.logAlways("lost, too, as a line makes no folder");
        ASSERT_TRUE(QDir().mkpath(pc.logFolder()));
        logger.logAlways("written");
    }
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: written"));
    EXPECT_EQ(pc.log("Test").count("LOG CREATED"), 0);
    EXPECT_EQ(pc.log("Test").count("LOG DESTROYED"), 1);
}

// Windows removes no file that is open; elsewhere its lines go with it.
TEST_F(LogFaultsTest, AFolderThatIsRemovedWhileALoggerLivesIsMadeAgainForTheNextOne) {
    Logger first = Logger::create("Test");
    first.logAlways("before");
    const bool isRemoved = QDir(pc.logFolder()).removeRecursively();
    first.logAlways("after");
    Logger second = Logger::create("Test");
    second.logAlways("second");
    first.logAlways("late");
    if (isRemoved) {
        EXPECT_THAT(pc.messages("Test"), ElementsAre("A: second"));
    } else {
        EXPECT_THAT(pc.messages("Test"), ElementsAre("A: before", "A: after", "A: second", "A: late"));
    }
    EXPECT_EQ(pc.log("Test").count("LOG CREATED"), isRemoved ? 1 : 2);
}

TEST_F(LogFaultsTest, AFolderThatWasRemovedBetweenTwoLoggersIsMadeAgain) {
    { Logger::create("Test").logAlways("first"); }
    ASSERT_TRUE(QDir(pc.logFolder()).removeRecursively());
    { Logger::create("Test").logAlways("second"); }
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: second"));
}

} // namespace
