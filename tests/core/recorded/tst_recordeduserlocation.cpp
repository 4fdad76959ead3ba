#include "core/GameLocation.h"
#include "core/UserProvidedLocationFinder.h"
#include "platform/Folders.h"
#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"

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
    EXPECT_EQ(Platform::recordedUserLocationKeys(), QStringList{"Wal"});
}

TEST_F(RecordedUserLocation, GivesWayToTheUsersOwn) {
    finder("Wal").setUserLocation("D:\\Neu");
    EXPECT_EQ(finder("Wal").userLocation(), "D:\\Neu");
    finder("Wal").setUserLocation("");
    EXPECT_EQ(finder("Wal").userLocation(), "D:\\Wal");
}

} // namespace
