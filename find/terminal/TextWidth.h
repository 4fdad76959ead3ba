#pragma once

#include <QString>

namespace Find {

/// The columns that a text takes on a terminal: two for East Asian wide characters, none for marks that combine with
/// the character before them and for invisible ones.
int displayWidth(const QString& text);

/// How many of the text's units, from `start` on, make a piece of at most `width` columns. At least one character with
/// its marks, so that one can go on behind it; 0 only at the text's end.
int fittingLength(const QString& text, int start, int width);

} // namespace Find
