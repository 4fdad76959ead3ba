#include "recordings/HostFiles.h"

#include <cerrno>
#include <dirent.h>
#include <memory>
#include <new>

namespace Recordings::HostFiles {

namespace {

struct FolderCloser {
    void operator()(DIR* folder) const noexcept { ::closedir(folder); }
};

} // namespace

// The C++ library's own ends the process when memory runs out.
std::optional<std::vector<Entry>> entriesOf(const QByteArray& folder) {
    const std::unique_ptr<DIR, FolderCloser> open(::opendir(folder.constData()));
    if (!open && errno == ENOMEM) {
        throw std::bad_alloc(); // lest a folder that is there counts as missing from now on
    }
    if (!open) {
        return std::nullopt;
    }
    std::vector<Entry> entries;
    while (const dirent* entry = ::readdir(open.get())) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..") {
            entries.push_back({name, entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN});
        }
    }
    return entries;
}

} // namespace Recordings::HostFiles
