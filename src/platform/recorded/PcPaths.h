#pragma once

#include "platform/recorded/RecordedPc.h"

namespace Recorded {

/// The drive of paths that name none: that of the recorded host, or else C.
QChar currentDrive(const RecordedPc& pc);

/// `path` with the drive that it is on. A path that no recording has, relative or on a network, becomes one at which
/// nothing can be.
QString pathOnDrive(const RecordedPc& pc, const QString& path);

} // namespace Recorded
