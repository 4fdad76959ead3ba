#pragma once

#include "find/list/ListedGame.h"

#include <QString>

#include <vector>

namespace Find {

/// All that is installed, list by list: what the plug-in in this file sees, whether a catalogue has it or not. Says in
/// `fault` why there is no telling.
std::vector<ListedGame> installedGames(const QString& pluginFile, QString& fault);

} // namespace Find
