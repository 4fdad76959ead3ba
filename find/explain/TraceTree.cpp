#include "find/explain/TraceTree.h"

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

using Kind = TraceSection::Kind;

class TreeMaker {
public:
    explicit TreeMaker(TraceSection& whole)
        : m_open{&whole} {}

    void add(const Trace::FinderBegin& event) { open(Kind::Finder).number = event.number; }

    void add(const Trace::IndexBegin& event) { open(Kind::Index).name = event.name; }

    void add(const Trace::FinderEnd& event) {
        const auto isIt = [&](const TraceSection* open) {
            return open->kind == Kind::Finder && open->number == event.number;
        };
        if (TraceSection* const section = close(isIt)) {
            section->found = event.found;
        }
    }

    void add(const Trace::IndexEnd& event) {
        const auto isIt = [&](const TraceSection* open) {
            return open->kind == Kind::Index && open->name == event.name;
        };
        if (TraceSection* const section = close(isIt)) {
            section->entries = event.entries;
        }
    }

    template <class OtherEvent>
    void add(const OtherEvent& event) {
        m_open.back()->parts.emplace_back(event);
    }

private:
    TraceSection& open(Kind kind) {
        auto section = std::make_unique<TraceSection>();
        section->kind = kind;
        TraceSection& opened = *section;
        m_open.back()->parts.emplace_back(std::move(section));
        m_open.push_back(&opened);
        return opened;
    }

    /// The innermost open section that is it, closed with all within it; null when there is none.
    template <class IsIt>
    TraceSection* close(IsIt isIt) {
        const auto found = std::find_if(m_open.rbegin(), m_open.rend(), isIt);
        if (found == m_open.rend()) {
            return nullptr;
        }
        TraceSection* const section = *found;
        m_open.erase(std::prev(found.base()), m_open.end());
        return section;
    }

    std::vector<TraceSection*> m_open; ///< from the whole to the innermost
};

} // namespace

TraceSection traceTree(const TraceEvents& events) {
    TraceSection whole;
    TreeMaker maker(whole);
    for (const TraceEvent& event : events) {
        std::visit([&maker](const auto& one) { maker.add(one); }, event);
    }
    return whole;
}

} // namespace Find
