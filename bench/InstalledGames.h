#pragma once

#include "BenchPc.h"

#include <QString>

/// The games of the PC that the benchmarks ask, by their numbers.
namespace InstalledGames {

/// All six lists get entries: `keys` sub-keys in each of the two of the registry, `files` files in each of the others.
void install(BenchPc& pc, int keys, int files);

// Where the lists are read.
constexpr auto uninstallKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
constexpr auto gamesExplorerKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games";
constexpr auto epicFolder = u"C:\\Epic\\Manifests";
constexpr auto steamFolder = u"D:\\Steam\\steamapps";
constexpr auto oculusFolder = u"E:\\Oculus";

QString name(int number);
QString shortcutName(int number); ///< no game is found by one

/// What stands in the catalogue of a host that asks for such games; of four one is a Steam game, one has an
/// uninstaller, one is the Epic launcher's, one is not installed.
constexpr int asked = 2000;
QString executable();

/// How many of them are found on a PC with so many entries.
int found(int keys, int files);

} // namespace InstalledGames
