#pragma once

#include "find/cli/Outcome.h"

namespace Find {

struct Options;

/// Tells all that is installed.
ExitStatus listPc(const Options& options);

} // namespace Find
