#include "support/Logger.h"

#include "support/RegistryKey.h"
#include "support/Trace.h"

#include <QString>

namespace {

constexpr quint32 defaultLevel = 2;
constexpr qint32 errorLevel = 1;
constexpr qint32 warningLevel = 2;

qint32 readLevel(const QByteArray& name) {
    const QByteArray subKey = "Software\\Veltrane\\" + name;
    quint32 level = defaultLevel;
    for (const quint32 hive : {Hive::currentUser, Hive::localMachine}) {
        if (RegistryKey::open(subKey.constData(), hive, View::view32).readDword("LogLevel", level)) {
            break;
        }
    }
    return static_cast<qint32>(level);
}

} // namespace

Logger Logger::create(const QByteArray& name, const LogFileOptions& options) {
    return Logger(name, std::make_unique<LogFile>(name, readLevel(name), options));
}

Logger::Logger(const QByteArray& name, std::unique_ptr<LogFile> file)
    : m_name(name)
    , m_file(std::move(file)) {}

void Logger::logAlways(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    write('A', format, arguments);
    va_end(arguments);
}

void Logger::logError(const char* format, ...) {
    if (m_file->level() < errorLevel) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    write('E', format, arguments);
    va_end(arguments);
}

void Logger::logWarning(const char* format, ...) {
    if (m_file->level() < warningLevel) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    write('W', format, arguments);
    va_end(arguments);
}

void Logger::write(char letter, const char* format, va_list arguments) {
    const QString text = QString::vasprintf(format, arguments);
    m_file->writeLine(letter, text.toUtf8());
    Trace::tell([&] { return Trace::Log{QString::fromLatin1(m_name), QString(QLatin1Char(letter)), text}; });
}
