#pragma once

#include <QLatin1String>

/// What finders look for in the files of other programs. Recordings take nothing else from them.
namespace ForeignFiles {

/// A manifest of the Epic launcher: the members that are used.
namespace EpicManifest {
const QLatin1String suffix(".item");
const QLatin1String appName("AppName");
const QLatin1String launchExecutable("LaunchExecutable");
const QLatin1String launchCommand("LaunchCommand");
const QLatin1String installLocation("InstallLocation");
const QLatin1String displayName("DisplayName");
const QLatin1String catalogNamespace("CatalogNamespace");
const QLatin1String catalogItemId("CatalogItemId");
const QLatin1String members[] = {appName,     launchExecutable, launchCommand, installLocation,
                                 displayName, catalogNamespace, catalogItemId};
} // namespace EpicManifest

/// Steam's list of its libraries: what begins a line that tells one.
namespace SteamLibraryFolders {
const QLatin1String fileName("libraryfolders.vdf");
const QLatin1String pathKey("\"path\"");
} // namespace SteamLibraryFolders

} // namespace ForeignFiles
