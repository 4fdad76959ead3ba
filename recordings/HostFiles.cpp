#include "recordings/HostFiles.h"

#include <algorithm>
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

QByteArray bytesOf(const fs::path& path) {
    return QByteArray::fromStdString(path.u8string());
}

} // namespace

std::optional<QByteArray> read(const QByteArray& path) {
    std::error_code error;
    const auto size = isFile(path) ? static_cast<qint64>(fs::file_size(pathOf(path), error)) : -1;
    if (error || size < 0 || size > longestFile) {
        return std::nullopt;
    }
    std::ifstream stream(pathOf(path), std::ios::binary);
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

bool isFile(const QByteArray& path) {
    std::error_code error;
    return fs::is_regular_file(pathOf(path), error);
}

bool isFolder(const QByteArray& path) {
    std::error_code error;
    return fs::is_directory(pathOf(path), error);
}

std::optional<std::vector<Entry>> list(const QByteArray& folder) {
    std::error_code error;
    fs::directory_iterator entry(pathOf(folder), error);
    std::vector<Entry> entries;
    while (!error && entry != fs::directory_iterator()) {
        std::error_code unknown;
        entries.push_back({bytesOf(entry->path().filename()), entry->is_symlink(unknown)});
        entry.increment(error);
    }
    if (error == std::errc::not_enough_memory) {
        throw std::bad_alloc(); // lest a folder that is there counts as missing from now on
    }
    if (error) {
        return std::nullopt;
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.name < b.name; });
    return entries;
}

} // namespace Recordings::HostFiles
