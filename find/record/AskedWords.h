#pragma once

#include "find/explain/TraceReader.h"
#include "recordings/Pc.h"

#include <QStringList>

namespace Find {

/// The names that finders asked for and did not read anywhere on the PC: their own constants, and what they were asked
/// for. Names of keys, values, variables and files, and what patterns are made of.
/// What stands behind the folder that holds the users' profiles is none.
QStringList askedWords(const TraceEvents& events, const Recordings::Pc& pc, const QString& profilesFolder);

} // namespace Find
