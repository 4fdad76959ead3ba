#include "fuzz/Fuzz.h"
#include "steam/SteamCommand.h"

/// Any command makes a path that is not longer. Around any path without quotes, the registered command makes that path.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString command = Fuzz::utf16Of(Fuzz::bytesOf(data, size));
    Fuzz::require(SteamCommand::executableOf(command).size() <= command.size(), "not longer");

    QString path = command;
    path.remove(QLatin1Char('"'));
    if (path == QLatin1String("%1")) {
        return 0; // is an argument, once it is in quotes
    }
    const QString registered = QStringLiteral("\"%1\" -- \"%2\"").arg(path, QStringLiteral("%1"));
    QString executable = path;
    executable.replace(QLatin1String("uninstall.exe"), QLatin1String("steam.exe"), Qt::CaseInsensitive);
    Fuzz::require(SteamCommand::executableOf(registered) == executable, "the path of a registered command");
    return 0;
}
