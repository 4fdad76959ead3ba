#include "recordings/RegValues.h"

#include "recordings/Utf16Text.h"

namespace Recordings {

QByteArray storedText(const QString& text) {
    return toUtf16(text + QChar(u'\0'));
}

std::optional<QString> textOf(quint32 type, const QByteArray& data) {
    const QString text = fromUtf16(data);
    const bool isWhole = type == RegType::string && data.size() % 2 == 0 && text.endsWith(QChar(u'\0'));
    return isWhole ? std::make_optional(text.left(text.size() - 1)) : std::nullopt;
}

} // namespace Recordings
