#pragma once

#include <QString>

/// What finders make of the commands with which programs are uninstalled. Recordings take nothing else from them.
namespace UninstallCommand {

const QLatin1String valueName("UninstallString");

/// What stands in commands that name no program in the game's folder.
const QLatin1String uselessParts[] = {
    QLatin1String("MsiExec.exe"),
    QLatin1String("Package Cache"),
    QLatin1String("steam://uninstall"),
};

/// Which of these is in `command`; empty when none is.
inline QString uselessPartOf(const QString& command) {
    for (const QLatin1String part : uselessParts) {
        if (command.contains(part, Qt::CaseInsensitive)) {
            return part;
        }
    }
    return {};
}

/// The quoted program that the command begins with. A command without quotes is taken whole, its arguments included.
inline QString programOf(const QString& command) {
    if (!command.startsWith(QLatin1Char('"'))) {
        return command;
    }
    const QString unquoted = command.mid(1);
    return unquoted.left(unquoted.indexOf(QLatin1Char('"')));
}

} // namespace UninstallCommand
