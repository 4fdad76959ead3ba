#include "platform/recorded/HostFiles.h"

#include "recordings/Utf8Text.h"

#include <QTextCodec>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <new>
#include <unistd.h>
#include <utility>

namespace Recorded::HostFiles {

namespace {

struct FolderCloser {
    void operator()(DIR* folder) const noexcept { ::closedir(folder); }
};

bool isFileOrFolder(const struct stat& info) {
    return S_ISREG(info.st_mode) || S_ISDIR(info.st_mode);
}

bool readInto(int fd, QByteArray& bytes) {
    int done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return false;
        }
        if (count == 0) {
            break;
        }
        done += static_cast<int>(count);
    }
    bytes.truncate(done);
    return true;
}

} // namespace

Descriptor::Descriptor(Descriptor&& other) noexcept
    : m_fd(std::exchange(other.m_fd, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        close();
        m_fd = std::exchange(other.m_fd, -1);
    }
    return *this;
}

void Descriptor::close() noexcept {
    if (m_fd >= 0) {
        ::close(std::exchange(m_fd, -1));
    }
}

std::optional<struct stat> status(const QByteArray& path) {
    struct stat info {};

    if (::stat(path.constData(), &info) != 0 || !isFileOrFolder(info)) {
        return std::nullopt;
    }
    return info;
}

Descriptor openFile(const QByteArray& path) {
    // Without O_NONBLOCK a named pipe would wait for its writer.
    Descriptor file(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)); // NOLINT(*-vararg)

    struct stat info {};

    if (!file.isOpen() || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return {};
    }
    return file;
}

std::optional<QByteArray> readFile(const QByteArray& path, qint64 limit) {
    const Descriptor file = openFile(path);

    struct stat info {};

    if (!file.isOpen() || ::fstat(file.get(), &info) != 0 || info.st_size > limit) {
        return std::nullopt;
    }
    QByteArray bytes(static_cast<int>(info.st_size), Qt::Uninitialized);
    if (!readInto(file.get(), bytes)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<std::vector<Entry>> list(const QByteArray& folder) {
    const std::unique_ptr<DIR, FolderCloser> open(::opendir(folder.constData()));
    if (!open && errno == ENOMEM) {
        throw std::bad_alloc(); // lest a folder that is there counts as missing from now on
    }
    if (!open) {
        return std::nullopt;
    }
    std::vector<Entry> entries;
    while (const dirent* entry = ::readdir(open.get())) {
        const QByteArray bytes(entry->d_name);
        if (bytes == "." || bytes == "..") {
            continue;
        }
        if (std::optional<QString> name = Recordings::decoded(bytes)) {
            entries.push_back({std::move(*name), entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN});
        }
    }
    return entries;
}

QByteArray encodedName(const QString& name) {
    const QByteArray utf8 = name.toUtf8();
    return Recordings::decoded(utf8) == name ? utf8 : QByteArray();
}

} // namespace Recorded::HostFiles
