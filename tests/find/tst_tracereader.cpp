#include "find/explain/TraceReader.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Host::parseTrace;
using Host::TraceEvents;

TEST(TraceReader, ReadsOneEventALine) {
    const TraceEvents events = parseTrace("{\"event\":\"exists\",\"path\":\"D:\\\\Käfer\",\"found\":true}\n"
                                          "{\"event\":\"subkeys\",\"view\":32,\"names\":[\"a\",\"b\"]}\n");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_TRUE(events[0].is("exists"));
    EXPECT_FALSE(events[0].is("list"));
    EXPECT_EQ(events[0].text("path"), "D:\\Käfer");
    EXPECT_TRUE(events[0].flag("found"));
    EXPECT_EQ(events[1].number("view"), 32);
    EXPECT_EQ(events[1].texts("names"), (QStringList{"a", "b"}));
}

TEST(TraceReader, AMissingFieldIsEmpty) {
    const TraceEvents events = parseTrace("{\"event\":\"environment\",\"name\":1}\n");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_FALSE(events[0].has("value"));
    EXPECT_TRUE(events[0].has("name"));
    EXPECT_EQ(events[0].text("name"), "") << "of another type";
    EXPECT_EQ(events[0].number("error"), 0);
    EXPECT_EQ(events[0].texts("names"), QStringList());
}

TEST(TraceReader, PassesOverWhatIsNoEvent) {
    const TraceEvents events = parseTrace("\nnonsense\n[]\n{\"path\":\"x\"}\n{\"event\":7}\n{\"event\":\"new\"}\r\n"
                                          "{\"event\":\"half");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_TRUE(events[0].is("new"));
}

TEST(TraceReader, NumbersOf32BitsStayWhole) {
    EXPECT_EQ(parseTrace("{\"event\":\"key\",\"error\":4294967295}").at(0).number("error"), 4294967295);
}

} // namespace
