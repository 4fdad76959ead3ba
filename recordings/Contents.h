#pragma once

#include <QByteArray>

#include <optional>

namespace Recordings {

/// What a file holds: bytes, or a file of the system at hand, which is read when it is asked for.
class Contents {
public:
    Contents() = default;

    Contents(QByteArray bytes) // NOLINT(*-explicit-*): bytes are contents
        : m_bytes(std::move(bytes))
        , m_size(m_bytes.size()) {}

    /// `path` as std::filesystem::u8path takes it.
    static Contents ofFile(const QByteArray& path, qint64 size);

    qint64 size() const { return m_size; }

    /// Empty when the file cannot be read.
    std::optional<QByteArray> read() const;

    friend bool operator==(const Contents& a, const Contents& b) { return a.read() == b.read(); }

private:
    QByteArray m_bytes;
    QByteArray m_path; ///< empty for bytes
    qint64 m_size = 0;
};

} // namespace Recordings
