#pragma once

#include "find/cli/Outcome.h"

#include <QStringList>

namespace Find {

struct Options;

/// Tells of a game that the catalogue does not have whether it is installed, where, and how a catalogue would have it.
/// `known` are the names that the catalogue has.
ExitStatus lookUp(const Options& options, const QStringList& known);

} // namespace Find
