#include "recordings/RegText.h"

#include "recordings/Utf16Text.h"
#include "recordings/Utf8Text.h"

#include <QList>

namespace Recordings {

namespace {

using Problems = std::vector<Problem>;

int lastLine(const QString& text) {
    return static_cast<int>(text.count(QLatin1Char('\n'))) + 1;
}

QString decodeUtf16(const QByteArray& bytes, const QString& file, Problems& problems) {
    QString text = fromUtf16(bytes);
    const bool cutUnit = bytes.size() % 2 != 0;
    const bool cutPair = !text.isEmpty() && text.at(text.size() - 1).isHighSurrogate();
    if (cutPair) {
        text.chop(1);
    }
    if (cutUnit || cutPair) {
        problems.push_back({file, lastLine(text), QStringLiteral("the file is cut in the middle of a character")});
    }
    return text;
}

QString decodeUtf8(const QByteArray& bytes, const QString& file, Problems& problems) {
    if (const std::optional<QString> text = decoded(bytes)) {
        return *text;
    }
    QString text;
    int line = 0;
    for (const QByteArray& part : bytes.split('\n')) {
        if (line++ > 0) {
            text += QLatin1Char('\n');
        }
        if (!decoded(part)) {
            problems.push_back({file, line, QStringLiteral("the line is not UTF-8")});
        }
        text += QString::fromUtf8(part);
    }
    return text;
}

} // namespace

int LineCounter::lineAt(int position) {
    for (; m_position < position && m_position < m_text.size(); ++m_position) {
        if (m_text.at(m_position) == QLatin1Char('\n')) {
            ++m_line;
        }
    }
    return m_line;
}

QString decodeRegText(const QByteArray& bytes, const QString& file, Problems& problems) {
    if (bytes.startsWith("\xFF\xFE")) {
        return decodeUtf16(bytes.mid(2), file, problems);
    }
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        return decodeUtf8(bytes.mid(3), file, problems);
    }
    return decodeUtf8(bytes, file, problems);
}

} // namespace Recordings
