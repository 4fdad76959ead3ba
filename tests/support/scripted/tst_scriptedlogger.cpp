#include "support/Logger.h"

#include "support/scripted/ScriptedLog.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

using ::testing::ElementsAre;

class ScriptedLoggerTest : public ScriptedLogTest {
protected:
    using Bytes = std::vector<unsigned char>;

    /// What is in "LogLevel" under one root: a result and the bytes that the buffer holds after it, which Windows
    /// leaves undefined when the value is longer.
    struct Level {
        Platform::ErrorCode result = Platform::errorFileNotFound;
        Bytes bytes;
    };

    void have(const Level& user, const Level& machine) {
        system.openKeyNarrow = [this](Platform::RootKey root, const QString& subKey, quint32 access) {
            EXPECT_EQ(subKey, "Software\\Veltrane\\Test");
            EXPECT_EQ(access, 0x20219U);
            opened.push_back(root);
            return Platform::errorSuccess;
        };
        system.queryValueNarrow = [this, user, machine](const QString& name, quint32&, void* data, quint32& length) {
            EXPECT_EQ(name, "LogLevel");
            EXPECT_EQ(length, 4U);
            const Level& level = opened.back() == Platform::RootKey::CurrentUser ? user : machine;
            std::copy(level.bytes.begin(), level.bytes.end(), static_cast<uchar*>(data));
            return level.result;
        };
    }

    /// The letters of the lines that a logger writes.
    QString letters() {
        opened.clear();
        streams.clear();
        {
            Logger logger = Logger::create("Test");
            logger.logAlways("text");
            logger.logError("text");
            logger.logWarning("text");
        }
        QString letters;
        for (const QString& line : streams.at(0)->lines().filter(": text")) {
            letters += line.at(0);
        }
        return letters;
    }

    std::vector<Platform::RootKey> opened;
    const Level tooLong{Platform::errorMoreData, {0, 0, 0, 0}};
    const Level missing{};
};

TEST_F(ScriptedLoggerTest, ALevelThatIsTooLongLeavesTheDefaultWhateverItLeavesInTheBuffer) {
    have(tooLong, missing);
    EXPECT_EQ(letters(), "AEW");
    EXPECT_THAT(opened, ElementsAre(Platform::RootKey::CurrentUser, Platform::RootKey::LocalMachine));
    have(missing, tooLong);
    EXPECT_EQ(letters(), "AEW");
    have(tooLong, tooLong);
    EXPECT_EQ(letters(), "AEW");
}

TEST_F(ScriptedLoggerTest, AUsersLevelThatIsTooLongHasNoPartInTheMachines) {
    have({Platform::errorMoreData, {0xFF, 0xFF, 0xFF, 0xFF}}, {Platform::errorSuccess, {1}});
    EXPECT_EQ(letters(), "AE") << "one byte, over those of the default";
}

TEST_F(ScriptedLoggerTest, TheMachineIsNotAskedWhereTheUserHasALevel) {
    have({Platform::errorSuccess, {1, 0, 0, 0}}, {Platform::errorSuccess, {0, 0, 0, 0}});
    EXPECT_EQ(letters(), "AE");
    EXPECT_THAT(opened, ElementsAre(Platform::RootKey::CurrentUser));
    EXPECT_EQ(system.openKeys, 0);
}

TEST_F(ScriptedLoggerTest, ALineThatTheLevelKeepsOutDoesNotOpenTheFile) {
    have({Platform::errorSuccess, {1, 0, 0, 0}}, {});
    canOpen = false;
    Logger logger = Logger::create("Test");
    asked.clear();
    logger.logWarning("text");
    EXPECT_TRUE(asked.isEmpty());
    logger.logError("text");
    EXPECT_THAT(asked, ElementsAre("open Test.log at"));
}

} // namespace
