#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Outcome.h"
#include "recordings/Pc.h"

namespace Find {

struct Options;

/// Records the PC that the plug-in answers from into the file that the options name. `chosen` is the recorded PC that
/// it answers from, null for the PC itself.
ExitStatus recordPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen);

} // namespace Find
