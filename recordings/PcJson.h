#pragma once

#include "recordings/Json.h"
#include "recordings/Pc.h"
#include "recordings/Problem.h"

#include <vector>

namespace Recordings {

/// Reads the members of `json`, the value of a pc.json, into `pc`, whose drives are there already: the paths that are
/// hidden or the system's are theirs. A fault costs only the entry that has it and is added to `problems` under `file`.
void readPcJson(const JsonValue& json, const QString& file, Pc& pc, std::vector<Problem>& problems);

/// All that is neither in the registry nor a file, and the paths that are hidden or the system's.
JsonValue pcJson(const Pc& pc);

} // namespace Recordings
