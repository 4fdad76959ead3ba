#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <vector>

/// The files of the system that holds a recording. Paths are what std::filesystem::u8path takes: bytes where names are
/// bytes, so that no locale has a say in which names can be read, and UTF-8 elsewhere.
namespace Recordings::HostFiles {

/// A whole file; empty when it is none or cannot be read. Pipes and devices are none, lest they hold a reader up.
std::optional<QByteArray> read(const QByteArray& path);

/// Writes a whole file and makes the folders on the way. False when that failed.
bool write(const QByteArray& path, const QByteArray& contents);

bool makeFolder(const QByteArray& path);

bool exists(const QByteArray& path);
bool isFile(const QByteArray& path);
bool isFolder(const QByteArray& path);

struct Entry {
    QByteArray name;
    bool isLink = false;
};

/// The entries of a folder in the order of their bytes. No value when it cannot be read.
std::optional<std::vector<Entry>> list(const QByteArray& folder);

/// The same in no order, as each system tells it.
std::optional<std::vector<Entry>> entriesOf(const QByteArray& folder);

} // namespace Recordings::HostFiles
