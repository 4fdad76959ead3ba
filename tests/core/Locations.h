#pragma once

#include "core/GameLocation.h"
#include "core/IGameFinder.h"

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

/// What a finder returned and made of a location.
struct Answer {
    bool found = false;
    GameLocation location;

    explicit operator bool() const { return found; }
};

inline bool operator==(const Answer& left, const Answer& right) {
    return left.found == right.found && left.location == right.location;
}

inline void PrintTo(const Answer& answer, std::ostream* stream) {
    *stream << (answer.found ? "found " : "not found ");
    PrintTo(answer.location, stream);
}

/// The answer when the location was used before.
inline Answer answerOf(IGameFinder& finder) {
    Answer answer{false, usedLocation()};
    answer.found = finder.find(answer.location);
    return answer;
}

/// A game was found that is started by the first of these executables.
inline Answer foundIn(const QString& folder, const QStringList& executables) {
    return {true, {executables.front(), executables.front(), executables, folder, false}};
}

/// A game was found that is started by a command.
inline Answer startedBy(const QString& command, const QString& folder, const QStringList& executables) {
    return {true, {command, executables.front(), executables, folder, false}};
}

/// None was found; this was the last folder that was looked in, or none.
inline Answer failedIn(const QString& folder) {
    return {false, {{}, {}, {}, folder, false}};
}

/// None was found, and the location is as it was.
inline Answer leftAlone() {
    return {false, usedLocation()};
}
