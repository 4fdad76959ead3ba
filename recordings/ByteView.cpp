#include "recordings/ByteView.h"

#include "recordings/Utf16Text.h"

#include <QtEndian>

namespace Recordings {

bool ByteView::holds(qint64 offset, qint64 size) const {
    return offset >= 0 && size >= 0 && offset <= m_bytes.size() && size <= m_bytes.size() - offset;
}

std::optional<quint16> ByteView::number16(qint64 offset) const {
    if (!holds(offset, sizeof(quint16))) {
        return std::nullopt;
    }
    return qFromLittleEndian<quint16>(m_bytes.constData() + offset);
}

std::optional<quint32> ByteView::number32(qint64 offset) const {
    if (!holds(offset, sizeof(quint32))) {
        return std::nullopt;
    }
    return qFromLittleEndian<quint32>(m_bytes.constData() + offset);
}

std::optional<ByteView> ByteView::part(qint64 offset, qint64 size) const {
    if (!holds(offset, size)) {
        return std::nullopt;
    }
    return ByteView(m_bytes.mid(static_cast<int>(offset), static_cast<int>(size)), m_codePage);
}

std::optional<QString> ByteView::ansiText(qint64 offset) const {
    const int end = holds(offset, 1) ? m_bytes.indexOf('\0', static_cast<int>(offset)) : -1;
    if (end < 0) {
        return std::nullopt;
    }
    return fromAnsi(m_bytes.mid(static_cast<int>(offset), end - static_cast<int>(offset)), m_codePage);
}

std::optional<QString> ByteView::wideText(qint64 offset) const {
    QString text;
    for (qint64 position = offset;; position += 2) {
        const std::optional<quint16> unit = number16(position);
        if (!unit) {
            return std::nullopt;
        }
        if (*unit == 0) {
            return text;
        }
        text += QChar(*unit);
    }
}

QString ByteView::asAnsi() const {
    return fromAnsi(m_bytes, m_codePage);
}

QString ByteView::asWide() const {
    return fromUtf16(m_bytes);
}

} // namespace Recordings
