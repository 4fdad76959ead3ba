#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Outcome.h"
#include "recordings/Pc.h"

#include <QStringList>

class IGameFinderFactory;

/// What the commands do. Where one takes `chosen`, that is the recorded PC from which the plug-in answers, null for the
/// PC itself.
namespace Find {

struct Options;

/// Tells all that is installed.
ExitStatus listPc(const Options& options);

/// Tells of a game that the catalogue does not have whether it is installed, where, and how a catalogue would have it.
/// `known` are the names that the catalogue has.
ExitStatus lookUp(const Options& options, const QStringList& known);

/// Records the PC into the file that the options name.
ExitStatus recordPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen);

/// A report that was made.
struct MadeReport {
    QString fault; ///< why there is none; empty when there is one
    QString file;
    QString summary;   ///< for who made it: the names that were replaced, which the page doesn't tell, included
    QStringList notes; ///< what the recording lacks
};

/// Makes a page of what the plug-in answers, into the file that the options name; the page carries the recording of the
/// PC. `problems` are the faults of the recorded PC.
MadeReport makeReport(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                      const QStringList& problems);

/// The same, and tells of it.
ExitStatus reportPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                    const QStringList& problems);

/// Makes a folder of the recorded PC in the file that the options name.
ExitStatus unpackPc(const Options& options);

/// Remembers the folder that the options name, and tells what that means for the games that ask for it.
ExitStatus locateGame(IGameFinderFactory& factory, const Options& options, const Catalogue& games);

ExitStatus forgetGame(IGameFinderFactory& factory, const Options& options);

} // namespace Find
