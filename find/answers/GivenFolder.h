#pragma once

#include <QString>

namespace Find {

/// A folder as it came in on the command line.
struct GivenFolder {
    QString folder;
    QString rest; ///< what came in with it, without having been meant to; empty as a rule
};

/// What was meant. In "D:\Games\X\" Windows takes the last backslash and the quote behind it for a quote within the
/// text, and goes on to the next quote: no name has one there. Elsewhere names may.
GivenFolder givenFolder(const QString& argument);

/// Without the separators at its end; a drive's root keeps its own.
QString withoutLastSeparators(const QString& folder);

/// Why the user's game can't be in this folder; empty when it can.
QString faultOfFolder(const QString& folder);

} // namespace Find
