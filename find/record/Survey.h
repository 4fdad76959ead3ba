#pragma once

#include "find/answers/Answers.h"
#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"

#include <QString>

#include <functional>
#include <vector>

class IGameFinderFactory;

namespace Find {

class PluginTrace;

/// What came of the search for one game: the answer, and which of the survey's events were told meanwhile.
struct GameSearch {
    GameAnswer answer;
    std::size_t firstEvent = 0;
    std::size_t endOfEvents = 0; ///< one behind the last
};

/// What the plug-in answered, and what it was seen reading: for the games of a catalogue and the runtimes, and for all
/// that is installed besides.
struct Survey {
    std::vector<GameSearch> searches; ///< in the catalogue's order
    std::vector<RuntimeAnswer> runtimes;
    TraceEvents events;
};

/// What is asked of the plug-in besides, once the survey is complete.
using MoreQuestions = std::function<void(IGameFinderFactory&, PluginTrace&, const Survey&)>;

/// Asks the plug-in in this file, which is unloaded afterwards. Says in `fault` why it gave no answers.
Survey surveyPc(const QString& pluginFile, const Catalogue& games, QString& fault, const MoreQuestions& askMore = {});

} // namespace Find
