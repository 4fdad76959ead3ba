#pragma once

#include "find/cli/Outcome.h"

namespace Find {

struct Options;

/// Makes a folder of the recorded PC in the file that the options name.
ExitStatus unpackPc(const Options& options);

} // namespace Find
