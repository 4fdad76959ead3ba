#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/cli/Outcome.h"

class IGameFinderFactory;

namespace Find {

struct Options;

/// Remembers the folder that the options name, and tells what that means for the games that ask for it.
ExitStatus locateGame(IGameFinderFactory& factory, const Options& options, const Catalogue& games);

ExitStatus forgetGame(IGameFinderFactory& factory, const Options& options);

} // namespace Find
