#include "recordings/HostFiles.h"

#include <system_error>

namespace Recordings::HostFiles {

std::optional<std::vector<Entry>> entriesOf(const QByteArray& folder) {
    std::error_code error;
    std::filesystem::directory_iterator entry(std::filesystem::u8path(folder.constData()), error);
    std::vector<Entry> entries;
    while (!error && entry != std::filesystem::directory_iterator()) {
        std::error_code unknown;
        const std::string name = entry->path().filename().u8string();
        entries.push_back({QByteArray::fromStdString(name), entry->is_symlink(unknown)});
        entry.increment(error);
    }
    return error ? std::nullopt : std::make_optional(std::move(entries));
}

} // namespace Recordings::HostFiles
