#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Program.h"

namespace Host {

struct Options;

/// Records the PC that the plug-in answers from into the folder that the options name.
ExitStatus recordPc(const Options& options, const Catalogue& games);

} // namespace Host
