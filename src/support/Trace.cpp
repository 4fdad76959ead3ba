#include "support/Trace.h"

#include "platform/PlainFile.h"
#include "platform/Process.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QPointer>
#include <QThread>
#include <QVariant>

#include <atomic>
#include <cstdarg>
#include <memory>
#include <mutex>

namespace Trace {

namespace {

/// Apart from the target, as it is asked for everywhere and needs no memory.
std::atomic<bool>& flag() noexcept {
    static std::atomic<bool> isOn{false};
    return isOn;
}

/// The file at `path` when it is new, empty or a trace, as its first line tells; null for any other.
std::unique_ptr<Platform::PlainFile> openTrace(const QString& path) {
    std::unique_ptr<Platform::PlainFile> file = Platform::openPlainFile(path);
    if (!file) {
        return nullptr;
    }
    const QByteArray first = toLine(Format());
    QByteArray start(first.size(), '\0');
    const int size = file->readStart(start.data(), start.size());
    if (size == 0) {
        file->append(first.constData(), first.size());
    } else if (size != first.size() || start != first) {
        return nullptr;
    }
    return file;
}

class Target {
public:
    void follow(const Origin& origin) {
        const std::lock_guard<std::mutex> guard(m_lock);
        flag() = false;
        m_file.reset();
        m_device.clear();
        if (origin.device != nullptr && origin.device->isWritable()) {
            m_device = origin.device;
        } else if (!origin.file.isEmpty() && !origin.isElevated) {
            m_file = openTrace(origin.file);
        }
        flag() = m_device || m_file;
    }

    void write(const QByteArray& line) {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (m_device) {
            m_device->write(line);
        } else if (m_file) {
            m_file->append(line.constData(), line.size());
        }
    }

private:
    std::mutex m_lock;
    QPointer<QIODevice> m_device;
    std::unique_ptr<Platform::PlainFile> m_file;
};

/// The process's one: what the finders ask, they ask of one PC. Not within a function: FirstOffered tells why.
Target target;

QIODevice* applicationDevice() {
    const QCoreApplication* const application = QCoreApplication::instance();
    // What belongs to another thread may be changing there.
    if (application == nullptr || application->thread() != QThread::currentThread()) {
        return nullptr;
    }
    return qobject_cast<QIODevice*>(application->property(deviceProperty).value<QObject*>());
}

} // namespace

void begin() noexcept {
    attempt([] {
        Origin origin{applicationDevice(), qEnvironmentVariable(environmentVariable)};
        origin.isElevated = !origin.file.isEmpty() && Platform::isElevated();
        begin(origin);
    });
}

void begin(const Origin& origin) noexcept {
    attempt([&origin] { target.follow(origin); });
}

bool isOn() noexcept {
    return flag();
}

void write(const Event& event) {
    target.write(toLine(event));
}

void note(const char* format, ...) noexcept {
    va_list arguments;
    va_start(arguments, format);
    tell([format, &arguments] { return Note{QString::vasprintf(format, arguments)}; });
    va_end(arguments);
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
