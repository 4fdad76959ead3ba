#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The columns that a text takes on a terminal: two for East Asian wide characters, none for marks that combine with
/// the character before them and for invisible ones.
int displayWidth(const QString& text);

/// How many of the text's units, from `start` on, make a piece of at most `width` columns. At least one character with
/// its marks, so that one can go on behind it; 0 only at the text's end.
int fittingLength(const QString& text, int start, int width);

/// The text in lines of at most `firstWidth` columns, those behind the first of at most `width`. Paths and addresses
/// are broken behind their separators where they have some, anything else where it must. The lines one after the other
/// are the text again: nothing is added or left out. No lines for an empty text.
QStringList wrapText(const QString& text, int firstWidth, int width);

} // namespace Find
