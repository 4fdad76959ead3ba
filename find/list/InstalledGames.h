#pragma once

#include "find/catalogue/InstalledEntries.h"
#include "find/list/ListedGame.h"

#include <QString>

#include <vector>

class IGameFinderFactory;

namespace Find {

class PluginTrace;

/// All that is installed, list by list: what the plug-in in this file sees, whether a catalogue has it or not. Says in
/// `fault` why there is no telling.
std::vector<ListedGame> installedGames(const QString& pluginFile, QString& fault);

/// All that is installed, each with the name and the folder that it has in `installedGames` where its list has but an
/// identifier and a library.
std::vector<InstalledEntry> shownEntries(IGameFinderFactory& factory, PluginTrace& trace,
                                         std::vector<InstalledEntry> entries);

} // namespace Find
