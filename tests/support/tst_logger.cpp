#include "support/Logger.h"

#include "support/RegistryKey.h"

#include "common/AtOnce.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"

#include <QDir>

#include <gmock/gmock.h>

#include <atomic>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;

static_assert(std::is_nothrow_move_constructible_v<Logger> && std::is_nothrow_move_assignable_v<Logger>);
static_assert(!std::is_copy_constructible_v<Logger> && !std::is_copy_assignable_v<Logger>);

class LoggerTest : public ::testing::Test {
protected:
    QStringList linesOfEachKind() const {
        {
            Logger logger = Logger::create("Test");
            logger.logAlways("always");
            logger.logError("error");
            logger.logWarning("warning");
        }
        return pc.messages("Test");
    }

    TestPc pc;
    const TestKey user{RootKey::CurrentUser, "Software\\Veltrane\\Test", View::view32};
    const TestKey machine{RootKey::LocalMachine, "Software\\Veltrane\\Test", View::view32};
    const TestKey machine64{RootKey::LocalMachine, "Software\\Veltrane\\Test", View::view64};
};

TEST_F(LoggerTest, WritesEveryKindOfLineByDefault) {
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always", "E: error", "W: warning"));
}

TEST_F(LoggerTest, EachLevelHasItsLinesAndAllHaveTheBanners) {
    const QStringList all{"A: always", "E: error", "W: warning"};
    const std::vector<std::pair<quint32, int>> levels{{0x7FFFFFFF, 3}, {3, 3},          {2, 3},         {1, 2},
                                                      {0, 1},          {0xFFFFFFFF, 1}, {0x80000000, 1}};
    for (const auto& [level, lines] : levels) {
        TestPc::clearLogs();
        pc.number(user, "LogLevel", level);
        EXPECT_EQ(linesOfEachKind(), all.mid(0, lines)) << level;
        EXPECT_TRUE(pc.log("Test").contains("LOG CREATED")) << level;
        EXPECT_TRUE(pc.log("Test").contains("LOG DESTROYED")) << level;
    }
}

TEST_F(LoggerTest, TheUsersLevelOverridesTheMachines) {
    pc.number(user, "LogLevel", 0);
    pc.number(machine, "LogLevel", 2);
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always"));
}

TEST_F(LoggerTest, TheMachinesLevelCountsWhereTheUserHasNone) {
    pc.number(machine, "LogLevel", 1);
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always", "E: error")) << "no key of the user's";
    TestPc::clearLogs();
    pc.key(user);
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always", "E: error")) << "a key without the value";
}

TEST_F(LoggerTest, ALevelInTheMachines64BitViewIsNotSeen) {
    pc.number(machine64, "LogLevel", 0);
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always", "E: error", "W: warning"));
}

TEST_F(LoggerTest, AUsersLevelThatIsTooLongFallsBackToTheMachines) {
    pc.value(user, "LogLevel", 11, QByteArray(8, '\0'));
    pc.number(machine, "LogLevel", 0);
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always"));
}

TEST_F(LoggerTest, TheTypeOfTheLevelIsNotExamined) {
    pc.value(user, "LogLevel", 3, QByteArray("\1\0\0\0", 4));
    EXPECT_THAT(linesOfEachKind(), ElementsAre("A: always", "E: error"));
}

TEST_F(LoggerTest, TheLevelIsReadOnce) {
    Logger logger = Logger::create("Test");
    pc.number(user, "LogLevel", 0);
    logger.logWarning("warning");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("W: warning"));
}

TEST_F(LoggerTest, FormatsLikePrintf) {
    Logger logger = Logger::create("Test");
    const QString wide = QString::fromUtf8("Käfer 競走 \xF0\x9F\x8E\xAE");
    logger.logAlways("%ls, %d, %lu, %s, 100%%", qUtf16Printable(wide), -1, 4294967295UL, "narrow");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: " + wide + ", -1, 4294967295, narrow, 100%"));
}

TEST_F(LoggerTest, LosesNoLineForItsCharacters) {
    Logger logger = Logger::create("Test");
    const QString half(QChar(0xD83C)); // half of a pair: not valid text
    logger.logAlways("before %ls after", qUtf16Printable(half));
    logger.logAlways("%ls", qUtf16Printable(QString()));
    const QString longText(100'000, QChar(0x7AF6));
    logger.logAlways("%ls", qUtf16Printable(longText));
    const QStringList messages = pc.messages("Test");
    ASSERT_EQ(messages.size(), 3);
    EXPECT_TRUE(messages.at(0).startsWith("A: before ") && messages.at(0).endsWith(" after"));
    EXPECT_EQ(messages.at(1), "A: ");
    EXPECT_EQ(messages.at(2), "A: " + longText);
}

TEST_F(LoggerTest, KeepsItsFileWhenItIsMoved) {
    {
        Logger first = Logger::create("Test");
        Logger second = std::move(first);
        second.logAlways("text");
        first = Logger::create("Other");
        first.logAlways("other");
    }
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: text"));
    EXPECT_EQ(pc.log("Test").count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log("Test").count("LOG DESTROYED"), 1);
    EXPECT_THAT(pc.messages("Other"), ElementsAre("A: other"));
}

TEST_F(LoggerTest, TwoLoggersOfOneNameShareTheFile) {
    Logger first = Logger::create("Test");
    Logger second = Logger::create("Test");
    first.logAlways("1");
    second.logAlways("2");
    first.logAlways("3");
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: 1", "A: 2", "A: 3"));
}

TEST_F(LoggerTest, ThreadsThatWriteAtOnceToAFileThatOpensLateLoseNoLine) {
    const QString path = pc.logPath("Test");
    ASSERT_TRUE(QDir().mkpath(path)) << "a folder is in the way";
    {
        Logger logger = Logger::create("Test");
        ASSERT_TRUE(QDir().rmdir(path));
        std::atomic<int> number{0};
        callAtOnce([&] { logger.logAlways("<%d>", ++number); });
    }
    const QByteArray log = pc.log("Test");
    for (int number = 1; number <= 16; ++number) {
        EXPECT_EQ(log.count('<' + QByteArray::number(number) + '>'), 1) << log.toStdString();
    }
    EXPECT_EQ(log.count("LOG CREATED"), 0);
    EXPECT_EQ(log.count("LOG DESTROYED"), 1);
}

} // namespace
