#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Outcome.h"
#include "recordings/Pc.h"

#include <QStringList>

namespace Find {

struct Options;

/// A report that was made.
struct MadeReport {
    QString fault; ///< why there is none; empty when there is one
    QString file;
    QString summary;   ///< for who made it: the names that were replaced, which the page doesn't tell, included
    QStringList notes; ///< what the recording lacks
};

/// Makes a page of what the plug-in answers, into the file that the options name; the page carries the recording of the
/// PC. `chosen` is the recorded PC that it answers from, null for the PC itself; `problems` are that one's faults.
MadeReport makeReport(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                      const QStringList& problems);

/// The same, and tells of it.
ExitStatus reportPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                    const QStringList& problems);

} // namespace Find
