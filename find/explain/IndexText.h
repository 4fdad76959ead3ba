#pragma once

#include <QStringList>

namespace Find {

struct TraceSection;

/// How a list of what is installed was made, for people. A long one is told in brief: where was looked, and what
/// mentions one of the words; how much is left out is said. No words: everything is told.
QStringList describeIndex(const TraceSection& index, const QStringList& words);

/// The names in the lists made within a section that mention one of the words, each with the list's name and folder.
QStringList similarNames(const TraceSection& section, const QStringList& words);

} // namespace Find
