#pragma once

#include "core/GameLocation.h"

#include <QString>
#include <QStringList>

#include <ostream>

inline bool operator==(const GameLocation& left, const GameLocation& right) {
    return left.launchCommand == right.launchCommand && left.executablePath == right.executablePath &&
           left.executablePaths == right.executablePaths && left.installFolder == right.installFolder &&
           left.hostFlag == right.hostFlag;
}

inline void PrintTo(const GameLocation& location, std::ostream* stream) {
    *stream << "{launchCommand: " << location.launchCommand.toStdString()
            << "\n executablePath: " << location.executablePath.toStdString()
            << "\n executablePaths: " << location.executablePaths.join(" | ").toStdString()
            << "\n installFolder: " << location.installFolder.toStdString()
            << "\n hostFlag: " << (location.hostFlag ? "true" : "false") << '}';
}

/// A location that an earlier search filled, with the host's flag set.
inline GameLocation usedLocation() {
    return {"steam://launch/1", "C:\\Old\\old.exe", {"C:\\Old\\old.exe", "C:\\Old\\other.exe"}, "C:\\Old", true};
}

/// What a search leaves that found these executables in the folder.
inline GameLocation foundIn(const QString& folder, const QStringList& executables) {
    return {executables.front(), executables.front(), executables, folder, false};
}

/// The same for a game that is started by a command.
inline GameLocation startedBy(const QString& command, const QString& folder, const QStringList& executables) {
    return {command, executables.front(), executables, folder, false};
}

/// What a failed search in the folder leaves.
inline GameLocation failedIn(const QString& folder) {
    return {{}, {}, {}, folder, false};
}
