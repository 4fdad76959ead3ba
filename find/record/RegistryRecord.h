#pragma once

#include "find/explain/TraceReader.h"
#include "recordings/Registry.h"

namespace Find {

/// Takes what finders use of the keys and values that the event tells of; nothing of any other event.
void addToRegistry(const TraceEvent& event, Recordings::Registry& registry);

} // namespace Find
