#include "recordings/Contents.h"

#include "recordings/HostFiles.h"

namespace Recordings {

Contents Contents::ofFile(const QByteArray& path, qint64 size) {
    Contents contents;
    contents.m_path = path;
    contents.m_size = size;
    return contents;
}

std::optional<QByteArray> Contents::read() const {
    return m_path.isEmpty() ? std::make_optional(m_bytes) : HostFiles::read(m_path);
}

} // namespace Recordings
