#pragma once

#include "find/record/NeutralNames.h"
#include "recordings/Pc.h"

namespace Find {

/// The same PC with neutral names in the place of private ones: in keys, values, names of files, what finders use of
/// their contents, targets of shortcuts and all other texts. Packages keep theirs, which name their makers; with other
/// ones they would not be found.
Recordings::Pc neutralPc(const Recordings::Pc& pc, const NeutralNames& names);

} // namespace Find
