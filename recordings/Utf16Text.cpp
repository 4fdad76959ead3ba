#include "recordings/Utf16Text.h"

#include <QtEndian>

namespace Recordings {

QByteArray toUtf16(const QString& text) {
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

QString fromUtf16(const QByteArray& bytes) {
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.constData(), text.size(), text.data());
    return text;
}

} // namespace Recordings
