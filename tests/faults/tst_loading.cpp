#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "faults/EveryFinder.h"
#include "faults/Usage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace {

class LoadingTest : public ::testing::Test {
protected:
    LoadingTest() { installForEveryFinder(pc, 1); }

    /// Loads the plug-in, searches and unloads it again: ten times, once with every finder.
    static void useTenTimes() {
        for (int use = 0; use < 10; ++use) {
            const PluginUnderTest plugin;
            const auto factory = plugin.create();
            if (use == 0) {
                const std::vector<FinderAnswer> answers = askEveryFinder(*factory, 0);
                EXPECT_EQ(std::count_if(answers.begin(), answers.end(), [](const auto& each) { return each.found; }),
                          12);
            } else {
                GameLocation location;
                EXPECT_TRUE(factory->createUserProvidedLocationFinder("Käfer 0", {"x.exe"})->find(location));
            }
        }
        EXPECT_FALSE(isLoaded(LURULUDRI_PLUGIN));
    }

    static Usage usageAfter(int tens) {
        for (int i = 0; i < tens; ++i) {
            useTenTimes();
        }
        return Usage::now();
    }

    TestPc pc;
};

TEST_F(LoadingTest, AThousandTimesLeavesNoHandleNoThreadAndNoMemory) {
    const Usage before = usageAfter(10); // in which Qt and the system make what they keep
    const Usage after = usageAfter(90);
    std::printf("after 100 uses %d handles, %d threads, %zu bytes; after 1,000 %d, %d, %zu\n", before.handles,
                before.threads, before.bytes, after.handles, after.threads, after.bytes);
    EXPECT_EQ(after.handles, before.handles + 90 * handlesLostByLookingForSteam());
    EXPECT_EQ(after.threads, before.threads);
    EXPECT_LT(after.bytes, before.bytes + Usage::uncertainBytes);
}

} // namespace
