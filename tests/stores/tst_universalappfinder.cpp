#include "stores/UniversalAppFinder.h"

#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// On a system that has no package functions, or none of these packages: Wine, and a recorded PC that lists none.
using UniversalAppFinderTest = FinderTest;

TEST_F(UniversalAppFinderTest, LeavesTheLocationAloneWhenThereIsNoPackage) {
    Finders::UniversalAppFinder finder(&logger, "Käfer.競走_%s");
    EXPECT_FALSE(finder.find(location));
    EXPECT_EQ(ask(finder), leftAlone()) << "it asks every time";
    EXPECT_FALSE(Finders::UniversalAppFinder(&logger, "").find(location));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: UAPP: Not found 'Käfer.競走_%s'",
                                                 "A: UAPP: Not found 'Käfer.競走_%s'", "A: UAPP: Not found ''"));
}

TEST_F(UniversalAppFinderTest, TheFactoryMakesIt) {
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    const auto finder = factory->createUniversalAppFinder("Bolt.Kite_abc123");
    EXPECT_EQ(ask(*finder), leftAlone());
    EXPECT_EQ(finder->userLocation(), "");
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: UAPP: Not found 'Bolt.Kite_abc123'"));
}

} // namespace
