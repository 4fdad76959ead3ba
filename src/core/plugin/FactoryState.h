#pragma once

#include "catalogue/GamesExplorerIndex.h"
#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "steam/SteamLibraryIndex.h"
#include "stores/EpicManifestIndex.h"
#include "stores/OculusLibraryIndex.h"
#include "support/Logger.h"

namespace Finders {

/// What the finders of one factory share. The order matters: the logger is made last and goes first, so its file is
/// closed before any index is torn down.
struct FactoryState {
    UninstallIndex uninstallIndex;
    GamesExplorerIndex gamesExplorerIndex;
    StartMenuIndex startMenuIndex;
    SteamLibraryIndex steamLibraryIndex;
    OculusLibraryIndex oculusLibraryIndex;
    EpicManifestIndex epicManifestIndex;
    Logger logger = Logger::create("Quorvan.Finders");
};

} // namespace Finders
