#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"

#include <functional>

class IGameFinderFactory;

namespace Find {

class Progress;

/// What the plug-in told so far.
using ReadTrace = std::function<const TraceEvents&()>;

/// Asks the plug-in, which has been asked for the games of the catalogue and the runtimes, whatever else makes its
/// finders look at everything that they can look at: for all that its lists of what is installed have, whether the
/// catalogue has it or not. The answers do not matter, but what the trace tells afterwards.
void askForTheRest(IGameFinderFactory& factory, const Catalogue& games, const ReadTrace& readTrace, Progress& progress);

} // namespace Find
