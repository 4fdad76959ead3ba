#include "support/Trace.h"

#include <QFile>
#include <QJsonDocument>
#include <QString>

#include <atomic>
#include <cstdarg>
#include <mutex>

namespace Trace {

namespace {

/// Apart from the file, as it is asked for everywhere and needs no memory.
std::atomic<bool>& flag() noexcept {
    static std::atomic<bool> isOn{false};
    return isOn;
}

class TraceFile {
public:
    void follow(const QString& path) {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (path == m_file.fileName() && m_file.isOpen() == !path.isEmpty()) {
            return;
        }
        m_file.close();
        m_file.setFileName(path);
        flag() = !path.isEmpty() && m_file.open(QIODevice::Append | QIODevice::Unbuffered);
    }

    void write(const QByteArray& line) {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (m_file.isOpen()) {
            m_file.write(line);
        }
    }

private:
    std::mutex m_lock;
    QFile m_file;
};

/// The process's one: what the finders ask, they ask of one PC.
TraceFile& traceFile() {
    static TraceFile file;
    return file;
}

QJsonObject ofIndex(const char* name) {
    return {{QStringLiteral("what"), QStringLiteral("index")}, {QStringLiteral("name"), QLatin1String(name)}};
}

} // namespace

void begin() {
    traceFile().follow(qEnvironmentVariable(environmentVariable));
}

bool isOn() noexcept {
    return flag();
}

void tell(const char* event, QJsonObject fields) {
    if (!isOn()) {
        return;
    }
    fields.insert(QStringLiteral("event"), QLatin1String(event));
    traceFile().write(QJsonDocument(fields).toJson(QJsonDocument::Compact) + '\n');
}

void note(const char* format, ...) {
    if (!isOn()) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    const QString text = QString::vasprintf(format, arguments);
    va_end(arguments);
    tell("note", {{QStringLiteral("text"), text}});
}

void entry(const QString& name, const QString& folder) {
    if (isOn()) {
        tell("entry", {{QStringLiteral("name"), name}, {QStringLiteral("folder"), folder}});
    }
}

IndexSection::IndexSection(const char* name)
    : m_name(name) {
    if (isOn()) {
        tell("begin", ofIndex(name));
    }
}

IndexSection::~IndexSection() {
    if (isOn()) {
        QJsonObject fields = ofIndex(m_name);
        fields.insert(QStringLiteral("entries"), static_cast<qint64>(m_entries));
        tell("end", fields);
    }
}

} // namespace Trace
