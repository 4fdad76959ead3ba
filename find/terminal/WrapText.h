#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The text in lines of at most `firstWidth` columns, those behind the first of at most `width`. Paths and addresses
/// are broken behind their separators where they have some, anything else where it must. The lines one after the other
/// are the text again: nothing is added or left out. No lines for an empty text.
QStringList wrapText(const QString& text, int firstWidth, int width);

} // namespace Find
