#include "platform/PlainFile.h"

#include "recordings/DrivePath.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Platform {

namespace {

/// Owns a file descriptor.
class Descriptor {
public:
    explicit Descriptor(int fd)
        : m_fd(fd) {}

    Descriptor(Descriptor&& other) noexcept
        : m_fd(std::exchange(other.m_fd, -1)) {}

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    ~Descriptor() {
        if (isOpen()) {
            ::close(m_fd);
        }
    }

    bool isOpen() const { return m_fd >= 0; }

    int get() const { return m_fd; }

private:
    int m_fd;
};

class DescriptorFile final : public PlainFile {
public:
    explicit DescriptorFile(Descriptor file)
        : m_file(std::move(file)) {}

    int readStart(char* buffer, int size) noexcept override {
        return static_cast<int>(::pread(m_file.get(), buffer, static_cast<size_t>(size), 0));
    }

    void append(const char* data, int size) noexcept override {
        while (size > 0) {
            const auto written = static_cast<int>(::write(m_file.get(), data, static_cast<size_t>(size)));
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written <= 0) {
                return;
            }
            data += written;
            size -= written;
        }
    }

private:
    Descriptor m_file;
};

bool isPlain(const struct stat& info) {
    return S_ISREG(info.st_mode) && info.st_nlink == 1;
}

} // namespace

std::unique_ptr<PlainFile> openPlainFile(const QString& path) {
    if (Recordings::DrivePath::parse(path)) { // a recorded PC is never written to
        return nullptr;
    }
    const QByteArray name = QFile::encodeName(path);

    struct stat info {};

    // Before it is opened, which alone would wake the reader of a pipe and rewind a tape; and after, for what may have
    // taken its place meanwhile.
    if (::lstat(name.constData(), &info) == 0 && !isPlain(info)) {
        return nullptr;
    }
    constexpr int flags = O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor file(::open(name.constData(), flags, S_IRUSR | S_IWUSR)); // NOLINT(*-vararg)
    if (!file.isOpen() || ::fstat(file.get(), &info) != 0 || !isPlain(info)) {
        return nullptr;
    }
    return std::make_unique<DescriptorFile>(std::move(file));
}

} // namespace Platform
