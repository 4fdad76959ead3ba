#include "core/MultiFinder.h"

#include "common/QtPrinters.h"
#include "core/Locations.h"
#include "core/ScriptedFinder.h"

#include <gmock/gmock.h>

#include <array>

namespace {

using Finders::MultiFinder;
using ::testing::ElementsAre;

using Eleven = std::array<std::unique_ptr<IGameFinder>, 11>;

class MultiFinderTest : public ::testing::Test {
protected:
    std::unique_ptr<IGameFinder> scripted(const QString& name, const ScriptedFinder::Script& script) {
        return std::make_unique<ScriptedFinder>(name, script, &notes);
    }

    static std::unique_ptr<MultiFinder> combine(Eleven& finders) {
        return std::make_unique<MultiFinder>(std::move(finders[0]), std::move(finders[1]), std::move(finders[2]),
                                             std::move(finders[3]), std::move(finders[4]), std::move(finders[5]),
                                             std::move(finders[6]), std::move(finders[7]), std::move(finders[8]),
                                             std::move(finders[9]), std::move(finders[10]));
    }

    QStringList notes;
    Eleven finders;
    GameLocation location = usedLocation();
};

TEST_F(MultiFinderTest, TheFirstMemberThatFindsTheGameWins) {
    finders[0] = scripted("1", {false, "", "from 1"});
    finders[1] = scripted("2", {true, "", "from 2"});
    finders[2] = scripted("3", {true, "", "from 3"});
    EXPECT_TRUE(combine(finders)->find(location));
    EXPECT_EQ(location.installFolder, "from 2");
    EXPECT_THAT(notes.mid(0, 2), ElementsAre("1 find", "2 find"));
}

TEST_F(MultiFinderTest, WithoutMembersItFindsNothingAndLeavesTheLocationAlone) {
    const auto finder = combine(finders);
    EXPECT_FALSE(finder->find(location));
    EXPECT_EQ(location, usedLocation());
    EXPECT_EQ(finder->userLocation(), "");
    finder->setUserLocation("D:\\X");
}

TEST_F(MultiFinderTest, WhenEveryMemberFailsTheLocationHoldsWhatTheLastLeft) {
    finders[0] = scripted("1", {false, "", "from 1"});
    finders[1] = scripted("2", {false, "", "from 2"});
    finders[2] = scripted("3", {false, "", ""});
    EXPECT_FALSE(combine(finders)->find(location));
    EXPECT_EQ(location.installFolder, "from 2");
    EXPECT_EQ(location.executablePath, usedLocation().executablePath);
}

TEST_F(MultiFinderTest, AMemberThatRestsOnTheUsersChoiceAndFailsEndsTheSearch) {
    finders[0] = scripted("1", {false, "", ""});
    finders[1] = scripted("2", {false, "D:\\Chosen", ""});
    finders[2] = scripted("3", {true, "", ""});
    EXPECT_FALSE(combine(finders)->find(location));
    EXPECT_THAT(notes.mid(0, 2), ElementsAre("1 find", "2 find"));
    EXPECT_FALSE(notes.contains("3 find"));
}

TEST_F(MultiFinderTest, AMemberThatRestsOnTheUsersChoiceMaySucceed) {
    finders[0] = scripted("1", {true, "D:\\Chosen", "D:\\Chosen"});
    EXPECT_TRUE(combine(finders)->find(location));
    EXPECT_EQ(location.installFolder, "D:\\Chosen");
}

TEST_F(MultiFinderTest, TriesElevenMembersInOrder) {
    QStringList expected;
    for (std::size_t i = 0; i < finders.size(); ++i) {
        finders.at(i) = scripted(QString::number(i), {});
        expected.append(QString::number(i) + " find");
    }
    EXPECT_FALSE(combine(finders)->find(location));
    EXPECT_EQ(notes.mid(0, 11), expected);
}

TEST_F(MultiFinderTest, SkipsNullsAndLeavesTheCallersPointersNull) {
    finders[3] = scripted("4", {});
    finders[9] = scripted("10", {true, "", ""});
    const auto finder = combine(finders);
    EXPECT_TRUE(finder->find(location));
    EXPECT_THAT(notes, ElementsAre("4 find", "10 find"));
    for (const auto& pointer : finders) {
        EXPECT_EQ(pointer, nullptr);
    }
}

TEST_F(MultiFinderTest, DestroysItsMembersFirstMemberFirst) {
    finders[0] = scripted("1", {});
    finders[1] = scripted("2", {});
    finders[2] = scripted("3", {});
    combine(finders).reset();
    EXPECT_THAT(notes, ElementsAre("1 destroyed", "2 destroyed", "3 destroyed"));
}

TEST_F(MultiFinderTest, TheUserLocationIsTheFirstThatAMemberKnows) {
    finders[0] = scripted("1", {});
    finders[1] = scripted("2", {false, "D:\\Games\\X", ""});
    finders[2] = scripted("3", {false, "D:\\Games\\Y", ""});
    EXPECT_EQ(combine(finders)->userLocation(), "D:\\Games\\X");
    EXPECT_FALSE(notes.contains("1 find")) << "asking is not searching";
}

TEST_F(MultiFinderTest, HasNoUserLocationWhenNoMemberKnowsOne) {
    finders[0] = scripted("1", {});
    EXPECT_EQ(combine(finders)->userLocation(), "");
}

TEST_F(MultiFinderTest, HandsAUserLocationToEveryMember) {
    finders[0] = scripted("1", {true, "", ""});
    finders[1] = scripted("2", {});
    const auto finder = combine(finders);
    finder->setUserLocation("D:\\X");
    EXPECT_THAT(notes, ElementsAre("1 set D:\\X", "2 set D:\\X"));
}

} // namespace
