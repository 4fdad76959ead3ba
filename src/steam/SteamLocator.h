#pragma once

#include <QString>

class Logger;

/// The Steam client's executable, as the registry spells it or, failing that, as the Start menu's shortcut "Steam"
/// does. Empty when there is none. Looks anew at each call; any thread may call that may write to the logger.
QString findSteamExecutable(Logger& logger);

/// The Steam client's configuration folder, with forward slashes; whether it exists is not checked. Empty when there is
/// no Steam client.
QString findSteamConfigFolder(Logger& logger);
