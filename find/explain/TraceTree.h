#pragma once

#include "find/explain/TraceReader.h"

#include <QString>

#include <memory>
#include <variant>
#include <vector>

namespace Host {

/// What was told between a `begin` and its `end` in a trace: the asking of a finder, the making of a list, or, without
/// a kind, the whole trace.
struct TraceSection {
    using Part = std::variant<TraceEvent, std::unique_ptr<TraceSection>>;

    QString what;              ///< "finder", "index"
    QString name;              ///< the list's
    int number = 0;            ///< which finder it is, counted from 1
    bool found = false;        ///< whether the finder found the game
    qint64 entries = 0;        ///< how many entries the list has
    std::vector<Part> parts{}; ///< in the order in which they were told
};

/// The events with what belongs together put together. A section that has no end ends where the trace does.
TraceSection traceTree(const TraceEvents& events);

} // namespace Host
