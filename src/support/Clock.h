#pragma once

#include <QtGlobal>

/// A clock that only goes forward, from an arbitrary start.
quint64 tickCountMs();
quint64 tickCountUs();

namespace Clock {

/// A performance-counter reading in units of 1/`unitsPerSecond` s; whole seconds and the rest are scaled apart, so
/// that no product overflows. `ticksPerSecond` is above zero.
quint64 scaled(quint64 ticks, quint64 ticksPerSecond, quint64 unitsPerSecond);

} // namespace Clock
