#pragma once

#include <QString>
#include <QStringList>

/// The result of one search. The caller owns it; a finder fills it and keeps no reference to it. Its contents mean
/// something only after `IGameFinder::find` returned true. The order of the fields is part of the binary interface.
struct GameLocation {
    /// What to start in order to run the game: an executable's full path with native separators, or a launch URL
    /// ("steam://launch/…", "com.epicgames.launcher://apps/…", "uapp://…").
    QString launchCommand;

    /// The main executable's full path; for a launch URL the executable that belongs to it, empty where there is none.
    QString executablePath;

    /// Every executable of the game that was found, full paths in the order found: the game's processes.
    QStringList executablePaths;

    /// The game's install folder, absolute.
    QString installFolder;

    /// The host's own. A finder that starts to fill the location sets it to false; none ever sets it to true.
    bool hostFlag = false;
};
