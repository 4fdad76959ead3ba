#pragma once

#include "find/explain/TraceReader.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

namespace Find {

/// What was told between a beginning and its end in a trace.
struct TraceSection {
    enum class Kind { Trace, Finder, Index }; ///< all of it, the asking of a finder, the making of a list

    using Part = std::variant<TraceEvent, std::unique_ptr<TraceSection>>;

    Kind kind = Kind::Trace;
    QString name;              ///< the list's
    int number = 0;            ///< which finder it is, counted from 1
    bool found = false;        ///< whether the finder found the game
    int entries = 0;           ///< how many entries the list has
    std::vector<Part> parts{}; ///< in the order in which they were told
};

/// The events with what belongs together put together. A section whose end was lost ends with the one around it.
TraceSection traceTree(const TraceEvents& events);

} // namespace Find
