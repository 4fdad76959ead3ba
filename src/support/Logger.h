#pragma once

#include "support/LogFile.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdarg>
#include <memory>

/// The handle through which lines reach one log file. Move-only; owns the file and closes it when destroyed.
///
/// The write operations take a printf format and its arguments, as QString::asprintf does: text held as QString is
/// passed as "%ls" with qUtf16Printable. They add the line's end. A line is on disk when the call returns.
///
/// Writing through a handle that was moved from is a programming error. Loggers take no lock: who shares one between
/// threads must serialise its calls, or lines may interleave in the file.
class Logger {
public:
    /// Reads the level from the registry value "LogLevel" of Software\Veltrane\`name`, the user's first, then the
    /// machine's, both in the 32-bit view; opens the log file at that level, which it keeps. `name` is ASCII.
    ///
    /// Level 0 or below: lines by logAlways only. Level 1: errors too. Level 2, the default, and above: warnings too.
    static Logger create(const QByteArray& name, const LogFileOptions& options = {});

    void logAlways(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void logError(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void logWarning(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);

    /// The log file's full path.
    const QString& path() const { return m_file->path(); }

private:
    Logger(const QByteArray& name, std::unique_ptr<LogFile> file);

    void write(char letter, const char* format, va_list arguments);

    QByteArray m_name;
    std::unique_ptr<LogFile> m_file;
};
