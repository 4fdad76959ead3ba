#pragma once

#include "find/explain/TraceReader.h"
#include "recordings/Pc.h"

namespace Find {

/// Takes what the event tells of a PC that is neither in the registry nor a file; nothing of any other event.
void addFact(const TraceEvent& event, Recordings::Pc& pc);

} // namespace Find
