#pragma once

#include "trace/Events.h"

#include <QByteArray>

#include <vector>

namespace Find {

/// One event of the library's trace (docs/trace.md).
using TraceEvent = Trace::Event;
using TraceEvents = std::vector<TraceEvent>;

/// The events of a trace in the order in which they were told. Lines that tell none, or none that is known, are passed
/// over, the last one too while it is being written.
TraceEvents parseTrace(const QByteArray& lines);

} // namespace Find
