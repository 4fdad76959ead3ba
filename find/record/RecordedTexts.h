#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"
#include "find/record/PrivateNames.h"
#include "recordings/Pc.h"

namespace Find {

/// What neutral names must not change: the keys, values and variables that finders ask for by names of their own, what
/// the catalogue's games are called, and which files and keys there are.
RecordedTexts collectTexts(const TraceEvents& events, const Catalogue& games, const Recordings::Pc& pc,
                           const QString& profilesFolder);

} // namespace Find
