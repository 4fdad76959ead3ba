#pragma once

class QProcessEnvironment;

namespace Find {

/// What the system says of a stream.
struct TerminalFacts {
    bool isTerminal = false;
    int width = 0; ///< in columns; 0 when unknown
    bool obeysEscapes = false;
};

/// How to write to a stream. The default is right for a file and for another program: whole lines without decoration.
struct Terminal {
    bool isTerminal = false;
    int width = 0; ///< no line may have more columns; 0 when there is no limit
    bool colours = false;
    bool rewritesLines = false; ///< whether a carriage return leads back to the line's begin
};

/// The facts together with the user's wishes in the environment: COLUMNS sets the width, NO_COLOR with any value
/// switches colours off (https://no-color.org), as does a TERM that is "dumb". The width is at least `leastWidth`.
Terminal describeTerminal(const TerminalFacts& facts, const QProcessEnvironment& environment);

/// Less has no room for a table.
constexpr int leastWidth = 20;

} // namespace Find
