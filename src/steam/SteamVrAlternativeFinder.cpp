#include "steam/SteamVrAlternativeFinder.h"

#include "core/LocationFilling.h"
#include "support/Files.h"
#include "support/RegistryKey.h"

#include <QtGlobal>

#include <optional>

namespace Finders {

namespace {

constexpr RegistrySource urlHandler{View::view32, Hive::classesRoot, u"steamvr\\Shell\\Open\\Command", u""};
constexpr RegistrySource monitor{View::view32, Hive::classesRoot, u"vrmonitor\\Shell\\Open\\Command", u""};

/// Whether the maker's own software registered itself in place of SteamVR.
bool isOurs(const QString& command) {
    return command.contains(QLatin1String("Veltrane"), Qt::CaseInsensitive);
}

/// Tells the command that is registered; false when it is the maker's own.
bool check(const char* name, const QString& command) {
    // Not by QDebug, whose destructor ends the process when memory runs out.
    if (isOurs(command)) {
        qCritical("%s Incorrect Path: %ls", name, qUtf16Printable(command));
        return false;
    }
    qInfo("%s Path: %ls", name, qUtf16Printable(command));
    return true;
}

/// SteamVR's folder with the separator at its end, cut out of the monitor's command; empty when it isn't in there.
std::optional<QString> folderIn(const QString& command) {
    int marker = command.indexOf(QLatin1String("bin\\win32\\vrmonitor.exe"));
    if (marker < 0) {
        marker = command.indexOf(QLatin1String("bin\\win64\\vrmonitor.exe"));
    }
    if (marker < 0) {
        return std::nullopt;
    }
    const int start = command.startsWith(QLatin1Char('"')) ? 1 : 0;
    return command.mid(start, marker - start);
}

} // namespace

SteamVrAlternativeFinder::SteamVrAlternativeFinder(Logger* logger)
    : AbstractFinder(logger) {}

bool SteamVrAlternativeFinder::find(GameLocation& location) {
    check("VrUrlHandler", readRegistryString(urlHandler)); // for the log alone
    const QString command = readRegistryString(monitor);
    if (!check("VrMonitor", command)) {
        return false;
    }
    const std::optional<QString> folder = folderIn(command);
    if (!folder) {
        return false;
    }
    const QString server = *folder + QLatin1String("bin\\win64\\vrserver.exe");
    if (!Files::exists(server)) {
        return false;
    }
    location.installFolder = *folder;
    addExecutable(location, server, server);
    return true;
}

} // namespace Finders
