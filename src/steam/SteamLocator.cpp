#include "steam/SteamLocator.h"

#include "catalogue/StartMenuFinder.h"
#include "catalogue/StartMenuIndex.h"
#include "core/GameLocation.h"
#include "steam/SteamCommand.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/RegistryKey.h"

namespace {

/// A value that may name the client.
struct SteamExeRegistrySource {
    bool is32Bit; ///< the view
    quint32 hive;
    const char16_t* keyPath;
    const char16_t* valueName; ///< empty for the key's default value
};

constexpr auto urlHandler = u"steam\\Shell\\Open\\Command";
constexpr auto uninstallKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam";

constexpr SteamExeRegistrySource sources[] = {
    {true, Hive::classesRoot, urlHandler, u""},
    {false, Hive::classesRoot, urlHandler, u""},
    {true, Hive::localMachine, uninstallKey, u"UninstallString"},
    {false, Hive::localMachine, uninstallKey, u"UninstallString"},
};

QString commandIn(const SteamExeRegistrySource& source) {
    return readRegistryString(
        {source.is32Bit ? View::view32 : View::view64, source.hive, source.keyPath, source.valueName});
}

QString findThroughStartMenu(Logger& logger) {
    StartMenuIndex index; // of its own, so that a Steam client installed meanwhile is seen
    Finders::StartMenuFinder finder(&logger, &index, QStringLiteral("Steam"), {QStringLiteral("steam.exe")},
                                    MatchMode::equals);
    GameLocation location;
    return finder.find(location) ? location.executablePath : QString();
}

} // namespace

QString findSteamExecutable(Logger& logger) {
    for (const SteamExeRegistrySource& source : sources) {
        const QString command = commandIn(source);
        if (command.isEmpty()) {
            continue;
        }
        const QString path = SteamCommand::executableOf(command);
        logger.logAlways("SteamExeFinder: Checking %ls", qUtf16Printable(path));
        if (Files::exists(path)) {
            return path;
        }
    }
    return findThroughStartMenu(logger);
}

QString findSteamConfigFolder(Logger& logger) {
    const QString executable = findSteamExecutable(logger);
    if (executable.isEmpty()) {
        return executable;
    }
    return Paths::absoluteFolderOf(executable) + QLatin1String("/config");
}
