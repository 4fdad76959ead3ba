#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"
#include "recordings/NeutralNames.h"
#include "recordings/Pc.h"

#include <QStringList>

#include <vector>

namespace Find {

/// A recording as it is sent: with neutral names in the place of private ones.
struct NeutralRecording {
    Recordings::Pc pc;
    std::vector<Recordings::PrivateName> names; ///< that were replaced; empty when they were to be kept
    Recordings::NeutralNames neutral;           ///< puts them in the place of private ones elsewhere, too
    QStringList leftOut;                        ///< what could not be recorded
};

/// Makes the recording of what the trace tells. `chosen` is the recorded PC that it is of, null for the PC itself.
NeutralRecording makeRecording(const TraceEvents& events, const Catalogue& games, bool areNamesKept,
                               const Recordings::Pc* chosen);

} // namespace Find
