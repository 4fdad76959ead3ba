#include "steam/SteamLocator.h"

#include "catalogue/StartMenuFinder.h"
#include "catalogue/StartMenuIndex.h"
#include "core/GameLocation.h"
#include "support/Files.h"
#include "support/Logger.h"
#include "support/Paths.h"
#include "support/RegistryKey.h"
#include "support/Text.h"

namespace {

constexpr auto urlHandler = u"steam\\Shell\\Open\\Command";
constexpr auto uninstallKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam";

constexpr RegistrySource sources[] = {
    {View::view32, Hive::classesRoot, urlHandler, u""},
    {View::view64, Hive::classesRoot, urlHandler, u""},
    {View::view32, Hive::localMachine, uninstallKey, u"UninstallString"},
    {View::view64, Hive::localMachine, uninstallKey, u"UninstallString"},
};

/// The executable that a registered command starts, or that lies beside the uninstaller which it starts. The order of
/// the steps matters; arguments that they do not know make a path that does not exist.
QString executableOf(QString command) {
    command.remove(QLatin1String("-- \"%1\""));
    command.remove(QLatin1String("\"%1\""));
    command.replace(QLatin1String("uninstall.exe"), QLatin1String("steam.exe"), Qt::CaseInsensitive);
    return Text::unquote(command.trimmed());
}

QString findThroughStartMenu(Logger& logger) {
    StartMenuIndex index; // of its own, so that a Steam client installed meanwhile is seen
    constexpr int equals = 0;
    Finders::StartMenuFinder finder(&logger, &index, QStringLiteral("Steam"), {QStringLiteral("steam.exe")}, equals);
    GameLocation location;
    return finder.find(location) ? location.executablePath : QString();
}

} // namespace

QString findSteamExecutable(Logger& logger) {
    for (const RegistrySource& source : sources) {
        const QString command = readRegistryString(source);
        if (command.isEmpty()) {
            continue;
        }
        const QString path = executableOf(command);
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
