#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Program.h"
#include "recordings/Pc.h"

#include <QStringList>

namespace Find {

struct Options;

/// Makes a page of what the plug-in answers, into the file that the options name; the page carries the recording of the
/// PC. `chosen` is the recorded PC that it answers from, null for the PC itself; `problems` are that one's faults.
ExitStatus reportPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                    const QStringList& problems);

} // namespace Find
