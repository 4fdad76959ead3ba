#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The known words that one who wrote this one may have meant, at most three, the likeliest first: those that differ by
/// few letters, then those that contain it or are contained in it. Letter case is ignored. Empty when none is near.
QStringList wordsNear(const QString& word, const QStringList& known);

/// These for the end of a message: `; did you mean "steam" or "startMenu"?`. Empty when none is near.
QString didYouMean(const QString& word, const QStringList& known);

} // namespace Find
