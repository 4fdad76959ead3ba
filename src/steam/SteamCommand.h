#pragma once

#include "support/Text.h"

#include <QString>

/// What is made of the commands that Steam registers.
namespace SteamCommand {

/// The executable that a registered command starts, or that lies beside the uninstaller which it starts. The order of
/// the steps matters; arguments that they do not know make a path that does not exist.
inline QString executableOf(QString command) {
    command.remove(QLatin1String("-- \"%1\""));
    command.remove(QLatin1String("\"%1\""));
    command.replace(QLatin1String("uninstall.exe"), QLatin1String("steam.exe"), Qt::CaseInsensitive);
    return Text::unquote(command.trimmed());
}

} // namespace SteamCommand
