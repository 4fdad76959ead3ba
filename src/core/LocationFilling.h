#pragma once

#include "core/GameLocation.h"

/// The rules by which every finder fills a location.
namespace Finders {

/// Empties the location, as a finder does once it has a place to look in, but for the folder that it looks in.
void resetLocation(GameLocation& location, const QString& installFolder = {});

/// Tells the trace that none of a finder's executables is in the folder.
void noteNoExecutable(const QString& folder);

/// Adds one executable that exists. The first one of a location is its main executable, started by `launchCommand`.
void addExecutable(GameLocation& location, const QString& executable, const QString& launchCommand);

/// Adds every file `folder` + native separator + name that exists, and returns them, both in the order of `names`.
/// `launchUrl` starts the game; when it is empty, the first executable does. Empty when no file exists.
QStringList collectExecutables(GameLocation& location, const QString& folder, const QStringList& names,
                               const QString& launchUrl = {});

} // namespace Finders
