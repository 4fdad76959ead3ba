#pragma once

#include "find/explain/TraceReader.h"
#include "recordings/Pc.h"

namespace Find {

/// Takes what the event tells of a PC that is neither in the registry nor a file; nothing of any other event.
void addFact(const TraceEvent& event, Recordings::Pc& pc);

/// Takes what finders use of the keys and values that the event tells of; nothing of any other event.
void addToRegistry(const TraceEvent& event, Recordings::Registry& registry);

} // namespace Find
