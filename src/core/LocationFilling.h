#pragma once

#include "core/GameLocation.h"

#include <functional>

/// The rules by which every finder fills a record.
namespace Finders {

/// Empties the record, as a finder does once it has a place to look in.
void resetLocation(GameLocation& location);

/// Tells the trace that none of a finder's executables is in the folder.
void noteNoExecutable(const QString& folder);

/// Adds one executable that exists. The first one of a record is its main executable, started by `launchCommand`.
void addExecutable(GameLocation& location, const QString& executable, const QString& launchCommand);

/// Adds every file `folder` + native separator + name that exists, in the order of `names`, and tells `onFound` of
/// each after it was added. `launchUrl` starts the game; when it is empty, the first executable does. True when any
/// file existed.
bool collectExecutables(GameLocation& location, const QString& folder, const QStringList& names,
                        const QString& launchUrl, const std::function<void(const QString& executable)>& onFound);

} // namespace Finders
