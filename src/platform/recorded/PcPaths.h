#pragma once

#include "platform/recorded/RecordedPc.h"

namespace Recorded {

/// The drive of paths that name none: that of the recorded host, or else C.
QChar currentDrive(const RecordedPc& pc);

} // namespace Recorded
