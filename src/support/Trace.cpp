#include "support/Trace.h"

#include <QFile>

#include <atomic>
#include <cstdarg>
#include <mutex>

namespace Trace {

namespace {

/// Apart from the target, as it is asked for everywhere and needs no memory.
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

} // namespace

void begin() noexcept {
    attempt([] { traceFile().follow(qEnvironmentVariable(environmentVariable)); });
}

bool isOn() noexcept {
    return flag();
}

void write(const Event& event) {
    traceFile().write(toLine(event));
}

void note(const char* format, ...) noexcept {
    va_list arguments;
    va_start(arguments, format);
    tell([format, &arguments] { return Note{QString::vasprintf(format, arguments)}; });
    va_end(arguments);
}

void entry(const QString& name, const QString& folder) noexcept {
    tell([&] { return Entry{name, folder}; });
}

IndexSection::IndexSection(const char* name) noexcept
    : m_name(name) {
    tell([name] { return IndexBegin{QString::fromLatin1(name)}; });
}

IndexSection::~IndexSection() {
    tell([this] { return IndexEnd{QString::fromLatin1(m_name), static_cast<int>(m_entries)}; });
}

FinderSection::FinderSection(std::size_t number) noexcept
    : m_number(static_cast<int>(number)) {
    tell([this] { return FinderBegin{m_number}; });
}

FinderSection::~FinderSection() {
    tell([this] { return FinderEnd{m_number, m_found}; });
}

} // namespace Trace
