#include "recordings/HostFiles.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <new>
#include <system_error>

namespace Recordings::HostFiles {

namespace {

namespace fs = std::filesystem;

constexpr qint64 longestFile = qint64{256} * 1024 * 1024;

fs::path pathOf(const QByteArray& path) {
    return fs::u8path(path.constData());
}

} // namespace

std::optional<QByteArray> read(const QByteArray& path) {
    std::error_code error;
    const auto size = isFile(path) ? static_cast<qint64>(fs::file_size(pathOf(path), error)) : -1;
    if (error || size < 0 || size > longestFile) {
        return std::nullopt;
    }
    std::ifstream stream;
    stream.rdbuf()->pubsetbuf(nullptr, 0); // takes no memory, whose want the stream would keep to itself
    stream.open(pathOf(path), std::ios::binary);
    if (!stream.is_open() && errno == ENOMEM) {
        throw std::bad_alloc(); // lest a file that is there counts as unreadable from now on
    }
    QByteArray bytes(static_cast<int>(size), Qt::Uninitialized);
    if (!stream.is_open() || (size > 0 && !stream.read(bytes.data(), size) && !stream.eof())) {
        return std::nullopt;
    }
    bytes.truncate(size > 0 ? static_cast<int>(stream.gcount()) : 0);
    return bytes;
}

bool write(const QByteArray& path, const QByteArray& contents) {
    std::error_code error;
    fs::create_directories(pathOf(path).parent_path(), error);
    std::ofstream stream(pathOf(path), std::ios::binary);
    stream.write(contents.constData(), contents.size());
    stream.close();
    return !stream.fail();
}

bool makeFolder(const QByteArray& path) {
    std::error_code error;
    fs::create_directories(pathOf(path), error);
    return !error && isFolder(path);
}

bool exists(const QByteArray& path) {
    std::error_code error;
    return fs::exists(pathOf(path), error);
}

bool isFile(const QByteArray& path) {
    std::error_code error;
    return fs::is_regular_file(pathOf(path), error);
}

bool isFolder(const QByteArray& path) {
    std::error_code error;
    return fs::is_directory(pathOf(path), error);
}

std::optional<std::vector<Entry>> list(const QByteArray& folder) {
    std::optional<std::vector<Entry>> entries = entriesOf(folder);
    if (entries) {
        std::sort(entries->begin(), entries->end(), [](const Entry& a, const Entry& b) { return a.name < b.name; });
    }
    return entries;
}

} // namespace Recordings::HostFiles
