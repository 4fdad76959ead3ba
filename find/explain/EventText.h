#pragma once

#include "find/explain/TraceReader.h"

#include <QString>
#include <QStringList>

namespace Find {

/// What an event of the trace says, for people: one line, some more where names are listed. Empty for an event that
/// tells nothing of the PC.
QStringList describeEvent(const TraceEvent& event);

/// Whether the event is one of the library's own looking up how much it should write to its log files.
bool isOfLogLevel(const TraceEvent& event);

} // namespace Find
