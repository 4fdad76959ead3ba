#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"
#include "recordings/Pc.h"

#include <QStringList>

namespace Find {

/// What neutral names must not change: the names that finders asked for and did not read anywhere on the PC, their own
/// constants and what they were asked for (names of keys, values, variables and files, and what patterns are made of),
/// and what the catalogue's games are called. What stands behind the folder that holds the users' profiles is none.
QStringList askedWords(const TraceEvents& events, const Catalogue& games, const Recordings::Pc& pc,
                       const QString& profilesFolder);

} // namespace Find
