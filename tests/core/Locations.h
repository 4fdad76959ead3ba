#pragma once

#include "core/GameLocation.h"

#include <QString>

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
