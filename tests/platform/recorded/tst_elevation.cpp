#include "platform/Process.h"
#include "support/Trace.h"

#include "common/QtPrinters.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

TEST(Elevation, AProcessOfItsUsersOwnRightsIsNotElevated) {
    EXPECT_FALSE(Platform::isElevated());
}

/// A process of another user's or group's rights, as a program with the set-user or set-group bit is.
class ElevatedProcess : public ::testing::Test {
protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "only root may take other rights";
        }
    }

    ~ElevatedProcess() override {
        EXPECT_EQ(::seteuid(::getuid()), 0);
        EXPECT_EQ(::setegid(::getgid()), 0);
        qunsetenv(Trace::environmentVariable);
        Trace::begin();
    }
};

TEST_F(ElevatedProcess, HasAnotherGroupsRights) {
    ASSERT_EQ(::setegid(65534), 0);
    EXPECT_TRUE(Platform::isElevated());
}

TEST_F(ElevatedProcess, HasAnotherUsersRights) {
    ASSERT_EQ(::seteuid(65534), 0);
    EXPECT_TRUE(Platform::isElevated());
}

TEST_F(ElevatedProcess, DoesNotGoByItsEnvironment) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("trace");
    qputenv(Trace::environmentVariable, file.toUtf8());
    ASSERT_EQ(::setegid(65534), 0);
    Trace::begin();
    EXPECT_FALSE(Trace::isOn());
    EXPECT_FALSE(QFileInfo::exists(file));

    ASSERT_EQ(::setegid(::getgid()), 0);
    Trace::begin();
    EXPECT_TRUE(Trace::isOn());
    EXPECT_TRUE(QFileInfo::exists(file));
}

} // namespace
