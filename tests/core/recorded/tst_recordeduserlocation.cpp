#include "core/GameLocation.h"
#include "core/UserProvidedLocationFinder.h"
#include "platform/Settings.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "core/Locations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

namespace {

using Finders::UserProvidedLocationFinder;

class RecordedUserLocation : public ::testing::Test {
protected:
    RecordedUserLocation() {
        pc.describe(R"({"userLocations": {"Wal": "D:\\Wal"}})");
        pc.file("drives/D/Wal/wal.exe");
        pc.file("drives/D/Neu/wal.exe");
        pc.choose();
    }

    UserProvidedLocationFinder finder(const QString& key) { return {&logger, key, {"wal.exe"}}; }

    RecordingFolder pc;
    Logger logger = Logger::create("Quorvan.Test.User");
};

TEST_F(RecordedUserLocation, IsFoundLetterCaseIgnored) {
    for (const char* const key : {"Wal", "wAL"}) {
        GameLocation location;
        EXPECT_TRUE(finder(key).find(location)) << key;
        EXPECT_EQ(location.installFolder, "D:\\Wal");
    }
    EXPECT_EQ(finder("Hai").userLocation(), "");
    EXPECT_FALSE(finder("Hai").userLocation().isNull());
}

TEST_F(RecordedUserLocation, IsNeverThatOfWhoReplaysThePc) {
    QSettings own(QSettings::UserScope, "Veltrane", "Quorvan");
    own.setValue("UserProvidedLocations/Wal", "D:\\Neu");
    own.setValue("UserProvidedLocations/Hai", "D:\\Neu");
    own.sync();
    EXPECT_EQ(finder("Wal").userLocation(), "D:\\Wal");
    EXPECT_EQ(finder("Hai").userLocation(), "");
    own.clear();
}

TEST_F(RecordedUserLocation, CanBeChangedForAsLongAsThePcIsChosen) {
    finder("wal").setUserLocation("D:\\Neu");
    EXPECT_EQ(finder("Wal").userLocation(), "D:\\Neu");
    finder("Wal").setUserLocation("");
    EXPECT_EQ(finder("Wal").userLocation(), "");
    pc.choose();
    EXPECT_EQ(finder("Wal").userLocation(), "D:\\Wal") << "the recording is as it was";
    const QSettings own(QSettings::UserScope, "Veltrane", "Quorvan");
    EXPECT_EQ(own.allKeys(), QStringList()) << "and so are the settings of who replays it";
}

TEST_F(RecordedUserLocation, IsListedAsItWasWritten) {
    const auto settings = [] { return Platform::openUserLocations(); };
    EXPECT_EQ(settings()->allKeys(), QStringList{"Wal"});
    settings()->setValue("WAL", "D:\\Neu");
    settings()->setValue("Hai", "D:\\Hai");
    EXPECT_EQ(settings()->allKeys(), (QStringList{"Hai", "Wal"}));
    settings()->remove("hai");
    EXPECT_EQ(settings()->allKeys(), QStringList{"Wal"});
}

TEST(WithoutARecording, TheUsersChoiceIsInTheUsersSettings) {
    Logger logger = Logger::create("Quorvan.Test.User");
    UserProvidedLocationFinder(&logger, "Wal", {}).setUserLocation("/opt/wal");
    QSettings own(QSettings::UserScope, "Veltrane", "Quorvan");
    EXPECT_EQ(own.value("UserProvidedLocations/Wal").toString(), "/opt/wal");
    EXPECT_EQ(UserProvidedLocationFinder(&logger, "Wal", {}).userLocation(), "/opt/wal");
    own.clear();
}

TEST(WithoutARecording, AChoiceThatCannotBeWrittenIsNoReasonToFail) {
    const QString folder = QFileInfo(QSettings(QSettings::UserScope, "Veltrane", "Quorvan").fileName()).path();
    QDir(folder).removeRecursively();
    ASSERT_TRUE(QFile(folder).open(QIODevice::WriteOnly)) << "where the folder of the settings would be";
    Logger logger = Logger::create("Quorvan.Test.User");
    UserProvidedLocationFinder finder(&logger, "Hai", {"hai.exe"});
    finder.setUserLocation("/opt/hai");
    finder.setUserLocation("");
    GameLocation location;
    EXPECT_FALSE(finder.find(location));
    EXPECT_EQ(location, GameLocation());

    ASSERT_TRUE(QFile::remove(folder));
    finder.setUserLocation("/opt/hai");
    QFile file(folder + "/Quorvan.conf");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "[UserProvidedLocations]\nHai=/opt/hai\n");
    finder.setUserLocation("");
}

} // namespace
