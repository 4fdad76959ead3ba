#include "stores/PackageQueries.h"

#include "stores/FakePackages.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr qint32 accessDenied = 5;

const std::u16string family = u"Bolt.Kite_abc123";
const std::u16string first = u"Bolt.Kite_1.0.0.0_x64__abc123";
const std::u16string second = u"Bolt.Kite_2.0.0.0_x64__abc123";
const std::u16string appId = u"Bolt.Kite_abc123!App";

class PackageQueriesTest : public ::testing::Test {
protected:
    std::u16string fullName() { return packageFullNameOf(family, FakePackages::functions()); }

    std::u16string applicationId() { return applicationIdOf(first, FakePackages::functions()); }

    /// Lets the call with this number, counted from 1, of the function do something and return `result`.
    void atCall(const std::string& function, int number, qint32 result, const std::function<void()>& change = {}) {
        system.onCall = [=, calls = 0](const std::string& called) mutable {
            if (called != function || ++calls != number) {
                return PackageFunctions::errorSuccess;
            }
            if (change) {
                change();
            }
            return result;
        };
    }

    FakePackages system{{{u"Other_1", u"Other", {u"Other!App"}}, {family, first, {appId, u"Bolt.Kite_abc123!Editor"}}}};
};

TEST_F(PackageQueriesTest, AFamilyHasAFullName) {
    EXPECT_EQ(fullName(), first);
    EXPECT_THAT(system.calls, ElementsAre("GetPackagesByPackageFamily", "GetPackagesByPackageFamily"));
}

TEST_F(PackageQueriesTest, OfSeveralPackagesTheFirstIsTaken) {
    system.packages.push_back({family, second, {}});
    EXPECT_EQ(fullName(), first);
    std::swap(system.packages[1], system.packages[2]);
    EXPECT_EQ(fullName(), second);
}

TEST_F(PackageQueriesTest, AFamilyWithoutPackagesHasNoFullName) {
    system.packages.pop_back();
    EXPECT_EQ(fullName(), u"");
    EXPECT_THAT(system.calls, ElementsAre("GetPackagesByPackageFamily")) << "the sizes are enough to know";
}

TEST_F(PackageQueriesTest, WithoutTheFunctionThereIsNoFullName) {
    PackageFunctions functions = FakePackages::functions();
    functions.getPackagesByPackageFamily = nullptr;
    EXPECT_EQ(packageFullNameOf(family, functions), u"");
    EXPECT_THAT(system.calls, IsEmpty());
}

TEST_F(PackageQueriesTest, TheOtherFunctionsAreNotNeededForAFullName) {
    PackageFunctions functions;
    functions.getPackagesByPackageFamily = FakePackages::functions().getPackagesByPackageFamily;
    EXPECT_EQ(packageFullNameOf(family, functions), first);
}

TEST_F(PackageQueriesTest, AFailureToTellTheSizesIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 1, accessDenied);
    EXPECT_EQ(fullName(), u"");
    EXPECT_EQ(system.calls.size(), 1U);
}

TEST_F(PackageQueriesTest, AShortBufferWithoutPackagesIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 1, PackageFunctions::errorInsufficientBuffer); // the count stays 0
    EXPECT_EQ(fullName(), u"");
    EXPECT_EQ(system.calls.size(), 1U);
}

TEST_F(PackageQueriesTest, AFailureToTellTheNamesIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 2, accessDenied);
    EXPECT_EQ(fullName(), u"");
    EXPECT_EQ(system.calls.size(), 2U);
}

TEST_F(PackageQueriesTest, APackageInstalledBetweenTheCallsIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 2, 0, [this] { system.packages.push_back({family, second, {}}); });
    EXPECT_EQ(fullName(), u"") << "the buffer is too small then, and it is not asked a third time";
    EXPECT_EQ(system.calls.size(), 2U);
}

TEST_F(PackageQueriesTest, ALongerNameBetweenTheCallsIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 2, 0, [this] { system.packages[1].fullName += u"_neutral"; });
    EXPECT_EQ(fullName(), u"");
}

TEST_F(PackageQueriesTest, AShorterNameBetweenTheCallsIsTaken) {
    atCall("GetPackagesByPackageFamily", 2, 0, [this] { system.packages[1].fullName.resize(4); });
    EXPECT_EQ(fullName(), u"Bolt");
}

TEST_F(PackageQueriesTest, APackageRemovedBetweenTheCallsIsNoFullName) {
    atCall("GetPackagesByPackageFamily", 2, 0, [this] { system.packages.pop_back(); });
    EXPECT_EQ(fullName(), u"") << "the call succeeds with a count of 0";
}

TEST_F(PackageQueriesTest, NothingIsTakenFromABufferThatCountsAsEmpty) {
    system.reportsNoCount = true;
    EXPECT_EQ(fullName(), u"");
    EXPECT_EQ(applicationId(), u"");
}

TEST_F(PackageQueriesTest, AFullNameThatIsNotThereIsEmpty) {
    system.reportsNoText = true;
    EXPECT_EQ(fullName(), u"");
}

TEST_F(PackageQueriesTest, AnEmptyFamilyIsAskedAsAnyOther) {
    EXPECT_EQ(packageFullNameOf(u"", FakePackages::functions()), u"");
    EXPECT_EQ(system.calls.size(), 1U);
}

TEST_F(PackageQueriesTest, OfSeveralApplicationsTheFirstIsTaken) {
    EXPECT_EQ(applicationId(), appId);
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName", "GetPackageApplicationIds",
                                          "GetPackageApplicationIds", "ClosePackageInfo"));
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, ATextOutsideTheCodePageIsTakenExactly) {
    system.packages[1].applicationIds = {u"Käfer.競走_abc!\U0001F3AE"};
    EXPECT_EQ(applicationId(), u"Käfer.競走_abc!\U0001F3AE");
}

TEST_F(PackageQueriesTest, APackageWithoutApplicationsHasNoId) {
    system.packages[1].applicationIds.clear();
    EXPECT_EQ(applicationId(), u"");
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName", "GetPackageApplicationIds", "ClosePackageInfo"));
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, AnEmptyFullNameIsNotAskedFor) {
    EXPECT_EQ(applicationIdOf(u"", FakePackages::functions()), u"");
    EXPECT_THAT(system.calls, IsEmpty());
}

TEST_F(PackageQueriesTest, AllThreeFunctionsAreNeededForAnId) {
    PackageFunctions functions = FakePackages::functions();
    functions.getPackagesByPackageFamily = nullptr;
    EXPECT_EQ(applicationIdOf(first, functions), appId) << "the fourth is not needed";
    system.calls.clear();

    functions = FakePackages::functions();
    functions.openPackageInfoByFullName = nullptr;
    EXPECT_EQ(applicationIdOf(first, functions), u"");
    functions = FakePackages::functions();
    functions.closePackageInfo = nullptr;
    EXPECT_EQ(applicationIdOf(first, functions), u"");
    functions = FakePackages::functions();
    functions.getPackageApplicationIds = nullptr;
    EXPECT_EQ(applicationIdOf(first, functions), u"");
    EXPECT_THAT(system.calls, IsEmpty());
}

TEST_F(PackageQueriesTest, APackageThatDoesNotOpenHasNoIdAndIsNotClosed) {
    EXPECT_EQ(applicationIdOf(u"No such package", FakePackages::functions()), u"");
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName"));
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, WhatAFailureWroteIsNotTaken) {
    system.lateResult = accessDenied;
    EXPECT_EQ(fullName(), u"");
    system.calls.clear();
    EXPECT_EQ(applicationId(), u"");
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName")) << "nothing is open, whatever was written";
    atCall("GetPackageApplicationIds", 2, 0, [this] { system.lateResult = accessDenied; });
    system.lateResult = 0;
    EXPECT_THAT(applicationIdsOf(first, FakePackages::functions()), IsEmpty());
}

TEST_F(PackageQueriesTest, AFailureToTellTheSizeIsNoIdAndCloses) {
    atCall("GetPackageApplicationIds", 1, accessDenied);
    EXPECT_EQ(applicationId(), u"");
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName", "GetPackageApplicationIds", "ClosePackageInfo"));
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, AShortBufferOfNoSizeIsNoIdAndCloses) {
    atCall("GetPackageApplicationIds", 1, PackageFunctions::errorInsufficientBuffer); // the length stays 0
    EXPECT_EQ(applicationId(), u"");
    EXPECT_THAT(system.calls, ElementsAre("OpenPackageInfoByFullName", "GetPackageApplicationIds", "ClosePackageInfo"));
}

TEST_F(PackageQueriesTest, AFailureToTellTheIdsIsNoIdAndCloses) {
    atCall("GetPackageApplicationIds", 2, accessDenied);
    EXPECT_EQ(applicationId(), u"");
    EXPECT_EQ(system.calls.back(), "ClosePackageInfo");
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, ALongerIdBetweenTheCallsIsNoIdAndCloses) {
    atCall("GetPackageApplicationIds", 2, 0, [this] { system.packages[1].applicationIds.push_back(u"Another"); });
    EXPECT_EQ(applicationId(), u"");
    EXPECT_EQ(system.calls.size(), 4U);
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, AShorterIdBetweenTheCallsIsTaken) {
    atCall("GetPackageApplicationIds", 2, 0, [this] { system.packages[1].applicationIds = {u"K"}; });
    EXPECT_EQ(applicationId(), u"K");
}

TEST_F(PackageQueriesTest, IdsGoneBetweenTheCallsAreNoId) {
    atCall("GetPackageApplicationIds", 2, 0, [this] { system.packages[1].applicationIds.clear(); });
    EXPECT_EQ(applicationId(), u"") << "the call succeeds with a count of 0";
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, AnIdThatIsNotThereIsEmpty) {
    system.reportsNoText = true;
    EXPECT_EQ(applicationId(), u"");
    EXPECT_EQ(system.openInfos, 0);
}

TEST_F(PackageQueriesTest, AFailureToCloseChangesNothing) {
    atCall("ClosePackageInfo", 1, accessDenied);
    EXPECT_EQ(applicationId(), appId);
}

TEST_F(PackageQueriesTest, TheSecondCallForNamesGetsTheSizesOfTheFirst) {
    system.packages.push_back({family, second, {}});
    EXPECT_EQ(fullName(), first);
    ASSERT_EQ(system.sizes.size(), 2U);
    EXPECT_EQ(system.sizes[0].count, 0U);
    EXPECT_EQ(system.sizes[0].length, 0U);
    EXPECT_EQ(system.sizes[1].count, 2U);
    EXPECT_EQ(system.sizes[1].length, first.size() + 1 + second.size() + 1);
}

TEST_F(PackageQueriesTest, TheSecondCallForIdsGetsTheSizeOfTheFirst) {
    system.packages[1].applicationIds = {appId};
    EXPECT_EQ(applicationId(), appId);
    ASSERT_EQ(system.sizes.size(), 2U);
    EXPECT_EQ(system.sizes[0].count, 0U);
    EXPECT_EQ(system.sizes[0].length, 0U);
    EXPECT_EQ(system.sizes[1].length, sizeof(char16_t*) + (appId.size() + 1) * sizeof(char16_t));
}

TEST_F(PackageQueriesTest, ANameWithoutAnEndEndsWhereTheSystemSays) {
    system.endsNoText = true;
    EXPECT_EQ(fullName(), first) << "at the buffer's end";
    atCall("GetPackagesByPackageFamily", 2, 0, [this] { system.packages[1].fullName.resize(4); });
    EXPECT_EQ(fullName(), u"Bolt") << "before it";
}

TEST_F(PackageQueriesTest, ABufferWithoutRoomForAPointerHasNoId) {
    for (const quint32 bytes : {1U, 7U, 8U}) {
        system.idBytes = bytes;
        EXPECT_EQ(applicationId(), u"") << bytes;
        EXPECT_EQ(system.openInfos, 0);
    }
}

} // namespace
