#include "core/GameLocation.h"

#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/TraceLog.h"
#include "common/recorded/RecordingFolder.h"
#include "core/Locations.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// A program of its own: the package functions are looked up once in a process, and every test here runs on a PC that
/// has them.
class PackagesTest : public ::testing::Test {
protected:
    PackagesTest() {
        recording.describe(R"({"packages": [
            {"family": "Bolt.Kite_abc", "fullName": "Bolt.Kite_1.0_x64__abc", "applicationIds": ["Kite!App", "Kite!Edit"]},
            {"family": "Bolt.Kite_abc", "fullName": "Bolt.Kite_2.0_x64__abc", "applicationIds": ["Kite2!App"]},
            {"family": "Bolt.Tools_abc", "fullName": "Bolt.Tools_1.0_x64__abc", "applicationIds": []}
        ]})");
        recording.choose();
    }

    bool find(const QString& family) { return factory().createUniversalAppFinder(family)->find(location); }

    IGameFinderFactory& factory() {
        if (!m_factory) {
            m_factory = plugin.create();
        }
        return *m_factory;
    }

    TestPc pc; // whose folder takes the log
    RecordingFolder recording;
    const PluginUnderTest plugin;
    GameLocation location = usedLocation();

private:
    std::unique_ptr<IGameFinderFactory> m_factory;
};

TEST_F(PackagesTest, TheFirstApplicationOfTheFirstPackageIsFound) {
    EXPECT_TRUE(find("Bolt.Kite_abc"));
    EXPECT_EQ(location, (GameLocation{"uapp://Kite!App", "", {}, "Bolt.Kite_1.0_x64__abc", false}));
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: UAPP: Checking 'Bolt.Kite_1.0_x64__abc' 'Kite!App'"));
}

TEST_F(PackagesTest, APackageWithoutApplicationsLeavesTheLocationAlone) {
    EXPECT_FALSE(find("Bolt.Tools_abc"));
    EXPECT_EQ(location, usedLocation());
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: UAPP: Checking 'Bolt.Tools_1.0_x64__abc' ''"));
}

TEST_F(PackagesTest, AnUnknownFamilyLeavesTheLocationAlone) {
    EXPECT_FALSE(find("Bolt.Kite"));
    EXPECT_EQ(location, usedLocation());
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: UAPP: Not found 'Bolt.Kite'"));
}

TEST_F(PackagesTest, TheTraceSaysWhyThereIsNothingToStart) {
    const TraceLog trace;
    find("Bolt.Tools_abc");
    find("Bolt.Kite");
    find("Bolt.Kite_abc");
    EXPECT_THAT(trace.notes(), ElementsAre("The app package has no application that could be started.",
                                           "The app package is not installed."));
}

TEST_F(PackagesTest, EverySearchAsksAgain) {
    const auto finder = factory().createUniversalAppFinder("Bolt.Kite_abc");
    EXPECT_TRUE(finder->find(location));
    RecordingFolder other;
    other.describe(R"({"packages": [{"family": "Bolt.Kite_abc", "fullName": "New", "applicationIds": ["New!App"]}]})");
    other.choose();
    EXPECT_TRUE(finder->find(location));
    EXPECT_EQ(location.launchCommand, "uapp://New!App");
}

} // namespace
