#pragma once

#include "find/terminal/Terminal.h"

#include <QString>
#include <QStringList>

namespace Find {

/// What a text says at a glance. Shown by colour, so that the text has to say it too.
enum class Tone { Plain, Heading, Good, Bad };

/// The text in its colour, where the terminal has colours.
QString coloured(const QString& text, Tone tone, const Terminal& terminal);

/// The text as lines of at most `width` columns; at least one. All but the first are indented, which tells them from
/// what comes next.
QStringList hangingLines(const QString& text, int width);

/// One line, with its end: on a terminal that is too narrow for it several, further in than it is itself.
QString renderLine(const QString& line, Tone tone, const Terminal& terminal);

} // namespace Find
