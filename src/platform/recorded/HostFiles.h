#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

#include <sys/stat.h>

/// Reading the file system that holds a recording, without a trace in it. Paths are bytes, so that no locale has a
/// say in which names can be read.
namespace Recorded::HostFiles {

/// Owns a file descriptor; -1 while there is none.
class Descriptor {
public:
    Descriptor() = default;

    explicit Descriptor(int fd)
        : m_fd(fd) {}

    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;
    Q_DISABLE_COPY(Descriptor)

    ~Descriptor() { close(); }

    bool isOpen() const { return m_fd >= 0; }

    int get() const { return m_fd; }

    void close() noexcept;

private:
    int m_fd = -1;
};

/// What a path leads to, links followed; empty for anything but files and folders.
std::optional<struct stat> status(const QByteArray& path);

/// Opens a file for reading; closed for anything else, so that a pipe or a device can't hold a reader up.
Descriptor openFile(const QByteArray& path);

/// A whole file; empty when it can't be read or is longer than `limit`.
std::optional<QByteArray> readFile(const QByteArray& path, qint64 limit);

struct Entry {
    QString name;
    bool isLink = false;
};

/// The entries of a folder without "." and "..", in no order. A name that isn't UTF-8 is left out: no Windows path can
/// name it. No value when the folder can't be read.
std::optional<std::vector<Entry>> list(const QByteArray& folder);

/// `name` in UTF-8; empty when a lone surrogate keeps it from being the name of any file here.
QByteArray encodedName(const QString& name);

} // namespace Recorded::HostFiles
