#include "find/explain/TraceTree.h"

namespace Host {

namespace {

/// Fills the section with the events from `next` on, up to its own end; `next` is then behind that.
void fill(TraceSection& section, const TraceEvents& events, std::size_t& next) {
    while (next < events.size()) {
        const TraceEvent& event = events[next++];
        if (event.is("end") && event.text("what") == section.what) {
            section.found = event.flag("found");
            section.entries = event.number("entries");
            return;
        }
        if (!event.is("begin")) {
            section.parts.emplace_back(event);
            continue;
        }
        auto inner = std::make_unique<TraceSection>();
        inner->what = event.text("what");
        inner->name = event.text("name");
        inner->number = static_cast<int>(event.number("number"));
        fill(*inner, events, next);
        section.parts.emplace_back(std::move(inner));
    }
}

} // namespace

TraceSection traceTree(const TraceEvents& events) {
    TraceSection whole;
    for (std::size_t next = 0; next < events.size();) {
        fill(whole, events, next);
    }
    return whole;
}

} // namespace Host
