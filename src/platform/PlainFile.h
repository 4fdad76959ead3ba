#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

/// Files that are only ever added to.
namespace Platform {

/// An open file on a disk. Other processes may read it, add to it and remove it meanwhile.
class PlainFile {
public:
    virtual ~PlainFile() = default;

    /// Reads what the file begins with: how many bytes, fewer than `size` when it is shorter; -1 on failure.
    virtual int readStart(char* buffer, int size) noexcept = 0;

    /// Adds to the end, in one piece where other processes add as well. Errors of the disk are ignored.
    virtual void append(const char* data, int size) noexcept = 0;

protected:
    PlainFile() = default;
    Q_DISABLE_COPY_MOVE(PlainFile)
};

/// Opens a file, or makes one that nobody else may read. Null for whatever is no plain file of this one name: a link of
/// any kind, which may lead anywhere, a folder, a pipe or a device, which might also hold its writer up.
std::unique_ptr<PlainFile> openPlainFile(const QString& path);

} // namespace Platform
