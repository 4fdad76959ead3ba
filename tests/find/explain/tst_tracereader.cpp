#include "find/explain/TraceReader.h"
#include "find/explain/TraceTree.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Find::parseTrace;
using Find::TraceEvents;
using Find::TraceSection;

TEST(TraceReader, ReadsOneEventALine) {
    const TraceEvents events = parseTrace("{\"event\":\"trace\",\"library\":\"Luruludri\",\"version\":1}\n"
                                          "{\"event\":\"exists\",\"path\":\"D:\\\\Käfer\",\"found\":true}\n");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(std::get<Trace::Format>(events[0]).version, 1);
    EXPECT_EQ(std::get<Trace::Exists>(events[1]).path, "D:\\Käfer");
    EXPECT_TRUE(std::get<Trace::Exists>(events[1]).found);
}

TEST(TraceReader, PassesOverWhatIsNoEvent) {
    const TraceEvents events = parseTrace("\nnonsense\n[]\n{\"path\":\"x\"}\n{\"event\":7}\n{\"event\":\"new\"}\n"
                                          "{\"event\":\"note\",\"text\":\"1\"}\r\n{\"event\":\"half");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(std::get<Trace::Note>(events[0]).text, "1");
}

const TraceSection& inner(const TraceSection& section, std::size_t part) {
    return *std::get<std::unique_ptr<TraceSection>>(section.parts.at(part));
}

TEST(TraceTree, PutsTogetherWhatIsWithinABeginningAndItsEnd) {
    const TraceSection whole =
        Find::traceTree({Trace::Note{"1"}, Trace::FinderBegin{2}, Trace::IndexBegin{"SteamLibraries"}, Trace::Note{"2"},
                         Trace::IndexEnd{"SteamLibraries", 3}, Trace::FinderEnd{2, true}, Trace::Note{"3"}});
    ASSERT_EQ(whole.parts.size(), 3U);
    const TraceSection& finder = inner(whole, 1);
    EXPECT_EQ(finder.kind, TraceSection::Kind::Finder);
    EXPECT_EQ(finder.number, 2);
    EXPECT_TRUE(finder.found);
    const TraceSection& index = inner(finder, 0);
    EXPECT_EQ(index.kind, TraceSection::Kind::Index);
    EXPECT_EQ(index.name, "SteamLibraries");
    EXPECT_EQ(index.entries, 3);
    EXPECT_EQ(index.parts.size(), 1U);
}

TEST(TraceTree, ASectionWhoseEndWasLostEndsWithTheOneAroundIt) {
    const TraceSection whole =
        Find::traceTree({Trace::FinderBegin{1}, Trace::IndexBegin{"EpicManifests"}, Trace::FinderEnd{1, false},
                         Trace::FinderBegin{2}, Trace::Note{"1"}, Trace::FinderEnd{2, true}});
    ASSERT_EQ(whole.parts.size(), 2U);
    EXPECT_EQ(inner(whole, 1).number, 2);
    EXPECT_TRUE(inner(whole, 1).found);
}

TEST(TraceTree, AnEndWithoutItsBeginningSaysNothing) {
    const TraceSection whole =
        Find::traceTree({Trace::FinderEnd{1, true}, Trace::IndexBegin{"Uninstall"}, Trace::IndexEnd{"StartMenu", 7},
                         Trace::Note{"1"}, Trace::IndexEnd{"Uninstall", 2}});
    ASSERT_EQ(whole.parts.size(), 1U);
    EXPECT_EQ(inner(whole, 0).parts.size(), 1U);
    EXPECT_EQ(inner(whole, 0).entries, 2);
}

} // namespace
