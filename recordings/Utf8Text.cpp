#include "recordings/Utf8Text.h"

#include <QTextCodec>

namespace Recordings {

std::optional<QString> decoded(const QByteArray& utf8) {
    static QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = codec->toUnicode(utf8.constData(), utf8.size(), &state);
    if (state.invalidChars != 0 || state.remainingChars != 0) {
        return std::nullopt;
    }
    return text;
}

} // namespace Recordings
