#include "recordings/RegCursor.h"

namespace Recordings {

namespace {

constexpr QLatin1Char quote('"');
constexpr QLatin1Char backslash('\\');
constexpr QLatin1Char lineBreak('\n');

bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

int hexDigit(QChar c) {
    const char16_t unit = c.unicode();
    if (unit >= u'0' && unit <= u'9') {
        return unit - u'0';
    }
    if (unit >= u'a' && unit <= u'f') {
        return unit - u'a' + 10;
    }
    return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : -1;
}

} // namespace

void RegCursor::skipBlanks() {
    m_position = skipBlanks(m_position);
}

int RegCursor::skipBlanks(int position) const {
    while (isBlank(at(position))) {
        ++position;
    }
    return position;
}

void RegCursor::toNextLine() {
    const int end = m_text.indexOf(lineBreak, m_position);
    m_position = end < 0 ? m_text.size() : end + 1;
}

bool RegCursor::atLineEnd() {
    skipBlanks();
    const bool isCrLf = peek() == QLatin1Char('\r') && at(m_position + 1) == lineBreak;
    return atEnd() || peek() == QLatin1Char(';') || peek() == lineBreak || isCrLf;
}

QString RegCursor::takeLine() {
    const int begin = m_position;
    toNextLine();
    QString line = m_text.mid(begin, m_position - begin);
    while (line.endsWith(lineBreak) || line.endsWith(QLatin1Char('\r'))) {
        line.chop(1);
    }
    return line;
}

bool RegCursor::take(QLatin1String word) {
    if (m_text.midRef(m_position, word.size()).compare(word, Qt::CaseInsensitive) != 0) {
        return false;
    }
    m_position += word.size();
    return true;
}

bool RegCursor::takeQuoted(bool mayWrap, QString& text) {
    const int begin = m_position++;
    int stray = -1;
    for (; !atEnd(); ++m_position) {
        const QChar c = peek();
        const QChar next = at(m_position + 1);
        if (c == quote) {
            ++m_position;
            return stray < 0 || fail(stray, QStringLiteral("a backslash in a string must be doubled"));
        }
        if (c == lineBreak && (!mayWrap || beginsKeyOrValue(m_position + 1))) {
            break;
        }
        if (c == backslash && (next == backslash || next == quote)) {
            ++m_position;
        } else if (c == backslash) {
            stray = stray < 0 ? m_position : stray;
        }
        text += peek();
    }
    return fail(begin, QStringLiteral("the string is not closed"));
}

bool RegCursor::takeNumber(quint32& number) {
    const int begin = m_position;
    number = 0;
    for (; hexDigit(peek()) >= 0 && m_position - begin < 8; ++m_position) {
        number = number * 16 + static_cast<quint32>(hexDigit(peek()));
    }
    if (m_position == begin || hexDigit(peek()) >= 0) {
        return fail(begin, QStringLiteral("1 to 8 hexadecimal digits are expected"));
    }
    return true;
}

bool RegCursor::takeBytes(QByteArray& bytes) {
    if (!takeContinuation()) {
        return false;
    }
    if (atLineEnd()) {
        return true;
    }
    while (true) {
        const int high = hexDigit(peek());
        const int low = hexDigit(at(m_position + 1));
        if (high < 0) {
            return failInBytes(QStringLiteral("a byte in hexadecimal digits is expected"));
        }
        bytes += static_cast<char>(low < 0 ? high : high * 16 + low);
        m_position += low < 0 ? 1 : 2;
        skipBlanks();
        if (!take(QLatin1String(","))) {
            return true;
        }
        if (!takeContinuation()) {
            return false;
        }
        skipBlanks();
    }
}

bool RegCursor::fail(int position, const QString& message) {
    m_fault = {position, message};
    return false;
}

bool RegCursor::takeLineBreak() {
    if (peek() == QLatin1Char('\r') && at(m_position + 1) == lineBreak) {
        ++m_position;
    }
    if (peek() != lineBreak) {
        return false;
    }
    ++m_position;
    return true;
}

bool RegCursor::takeContinuation() {
    skipBlanks();
    if (!take(QLatin1String("\\"))) {
        return true;
    }
    skipBlanks();
    const int end = m_position;
    if (!takeLineBreak()) {
        return failInBytes(QStringLiteral("a line break is expected after the backslash"));
    }
    if (atLineEnd() || beginsKeyOrValue(m_position)) {
        m_position = end;
        return fail(end, QStringLiteral("the list of bytes is not continued"));
    }
    return true;
}

bool RegCursor::failInBytes(const QString& message) {
    const int fault = m_position;
    // The lines that continue the list go with it, or each would count as a fault of its own.
    while (!atEnd()) {
        const int end = m_text.indexOf(lineBreak, m_position);
        int last = end < 0 ? m_text.size() - 1 : end - 1;
        while (last > m_position && (isBlank(at(last)) || at(last) == QLatin1Char('\r'))) {
            --last;
        }
        m_position = end < 0 ? m_text.size() : end;
        if (end < 0 || at(last) != backslash || beginsKeyOrValue(end + 1)) {
            break;
        }
        m_position = end + 1;
    }
    return fail(fault, message);
}

bool RegCursor::beginsKeyOrValue(int position) const {
    const int begin = skipBlanks(position);
    if (at(begin) == QLatin1Char('[')) {
        const QStringRef start = m_text.midRef(begin + 1, 6);
        return start.startsWith(QLatin1String("HKEY_"), Qt::CaseInsensitive) ||
               start.startsWith(QLatin1String("-HKEY_"), Qt::CaseInsensitive);
    }
    int end = begin;
    if (at(begin) == quote) {
        for (++end; at(end) != quote; end += at(end) == backslash ? 2 : 1) {
            if (end >= m_text.size() || at(end) == lineBreak) {
                return false;
            }
        }
    } else if (at(begin) != QLatin1Char('@')) {
        return false;
    }
    return at(skipBlanks(end + 1)) == QLatin1Char('=');
}

} // namespace Recordings
