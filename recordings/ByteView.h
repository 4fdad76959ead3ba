#pragma once

#include "recordings/AnsiText.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Recordings {

/// Reads numbers and texts, all little-endian, at offsets that a file states and that may be wrong: empty when
/// anything would lie outside.
class ByteView {
public:
    explicit ByteView(QByteArray bytes, int codePage = westernCodePage)
        : m_bytes(std::move(bytes))
        , m_codePage(codePage) {}

    qint64 size() const { return m_bytes.size(); }

    bool isEqual(const QByteArray& bytes) const { return m_bytes == bytes; }

    std::optional<quint16> number16(qint64 offset) const;
    std::optional<quint32> number32(qint64 offset) const;
    std::optional<ByteView> part(qint64 offset, qint64 size) const;

    /// Text that ends with a 0, in the ANSI code page or in UTF-16.
    std::optional<QString> ansiText(qint64 offset) const;
    std::optional<QString> wideText(qint64 offset) const;

    /// All of the bytes as text, in the ANSI code page or in UTF-16.
    QString asAnsi() const;
    QString asWide() const;

private:
    bool holds(qint64 offset, qint64 size) const;

    QByteArray m_bytes;
    int m_codePage;
};

} // namespace Recordings
