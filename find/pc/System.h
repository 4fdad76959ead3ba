#pragma once

#include <QString>

namespace Find {

/// Sets a variable in the environment of this process, for the plug-in too; an empty value removes it. The value can
/// be any text: Qt's own function would lose, on Windows, what is outside the ANSI code page. False when it failed.
bool setEnvironmentVariable(const char* name, const QString& value);

/// Opens a file as a double click on it does; false when the system can't.
bool openFile(const QString& file);

/// Whether the library answers from the PC it runs on, and knows no recorded ones.
bool isPcItself();

} // namespace Find
