#pragma once

#include <QStringList>

class Logger;

/// The "Manifests" folders of all Oculus libraries that have one and a "Software" folder beside it, in the registry's
/// order, absolute with forward slashes. Each rejected library is logged as an error. Looks anew at each call; any
/// thread may call that may write to the logger.
QStringList oculusLibraryFolders(Logger& logger);
