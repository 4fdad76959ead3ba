#pragma once

#include <QByteArray>
#include <QString>

namespace Find {

/// Sets a variable in the environment of this process, for the plug-in too; an empty value removes it. The value can
/// be any text: Qt's own function would lose, on Windows, what is outside the ANSI code page. False when it failed.
bool setEnvironmentVariable(const char* name, const QString& value);

/// Keeps the contents in a file that no folder has and that goes with this process, whatever ends it. Its name, for
/// this process alone; empty when the system, or the memory, has no such files.
QString fileInMemory(const QByteArray& contents);

/// The drive that the path is on, as "Q:", when there is no such drive; empty otherwise.
QString missingDrive(const QString& path);

/// Opens a file as a double click on it does; false when the system can't.
bool openFile(const QString& file);

/// Whether the library answers from the PC it runs on, and knows no recorded ones.
bool isPcItself();

} // namespace Find
