#pragma once

#include "find/explain/TraceReader.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

struct Game;
struct GameAnswer;

/// One line of what is told of a search.
struct ExplanationLine {
    enum class Kind {
        Finder,  ///< a finder as the catalogue has it, which the lines behind it are about
        Seen,    ///< what was looked at, and what was there
        Reason,  ///< why the finder went on
        Outcome, ///< what came of it
    };

    Kind kind = Kind::Seen;
    QString text; ///< begins with blanks where it belongs to the line before
};

/// What happened in a search for the game, for each finder; nothing of how lists of what is installed were made.
std::vector<ExplanationLine> explainSearch(const Game& game, const TraceEvents& events);

/// All that is told of a search.
struct Explanation {
    QString outcome; ///< the game and what came of the search for it
    bool found = false;
    std::vector<ExplanationLine> lines;
    QStringList similar; ///< the names that come near, when nothing was found
};

/// What happened when the plug-in was asked for the game, as its trace tells: for each finder where it looked, what it
/// saw and why it went on. In full when `isFull`; otherwise long lists are told in brief.
Explanation explain(const Game& game, const GameAnswer& answer, const TraceEvents& events, bool isFull);

} // namespace Find
