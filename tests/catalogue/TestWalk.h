#pragma once

#include "catalogue/ShortcutWalk.h"

#include <QStringList>

#include <algorithm>
#include <vector>

/// A clock that shows these times, one a look, and the last one ever after.
inline WalkSource clockShowing(const std::vector<quint64>& times) {
    WalkSource source;
    source.clockMs = [times, next = std::size_t{0}]() mutable { return times[std::min(next++, times.size() - 1)]; };
    return source;
}
