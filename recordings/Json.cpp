#include "recordings/Json.h"

#include "recordings/Utf8Text.h"

#include <algorithm>

namespace Recordings {

namespace {

constexpr int deepest = 1000; // folders within folders
constexpr QLatin1Char quote('"');
constexpr QLatin1Char backslash('\\');

struct Escape {
    char letter;
    char16_t meaning;
};

constexpr Escape escapes[] = {
    {'"', u'"'}, {'\\', u'\\'}, {'/', u'/'}, {'b', u'\b'}, {'f', u'\f'}, {'n', u'\n'}, {'r', u'\r'}, {'t', u'\t'},
};

class Reader {
public:
    Reader(const QString& text, JsonFault& fault)
        : m_text(text)
        , m_fault(fault) {}

    bool readWhole(JsonValue& value);

private:
    bool readValue(JsonValue& value, int depth);
    bool readMembers(JsonValue& object, int depth);
    bool readItems(JsonValue& array, int depth);
    bool readString(QString& string);
    bool readEscape(QString& string);
    bool readWord(JsonValue& value);
    bool readSeparator(QLatin1Char end, bool& isEnd);
    bool take(QLatin1Char wanted);
    void skipSpace();
    bool fail(const QString& message);
    bool failAt(int position, const QString& message);

    int column(int position) const { return position - m_lineBegin + 1; }

    QChar peek() const { return m_position < m_text.size() ? m_text.at(m_position) : QChar(); }

    bool atEnd() const { return m_position >= m_text.size(); }

    const QString& m_text;
    JsonFault& m_fault;
    int m_position = 0;
    int m_line = 1;
    int m_lineBegin = 0;
};

bool Reader::readWhole(JsonValue& value) {
    if (!readValue(value, 0)) {
        return false;
    }
    skipSpace();
    return atEnd() || fail(QStringLiteral("something follows the end"));
}

bool Reader::readValue(JsonValue& value, int depth) {
    skipSpace();
    value.line = m_line;
    value.column = column(m_position);
    if (depth > deepest) {
        return fail(QStringLiteral("too deep"));
    }
    if (take(QLatin1Char('{'))) {
        value.kind = JsonValue::Kind::Object;
        return readMembers(value, depth);
    }
    if (take(QLatin1Char('['))) {
        value.kind = JsonValue::Kind::Array;
        return readItems(value, depth);
    }
    if (take(quote)) {
        value.kind = JsonValue::Kind::String;
        return readString(value.text);
    }
    return readWord(value);
}

bool Reader::readMembers(JsonValue& object, int depth) {
    bool isEnd = take(QLatin1Char('}'));
    while (!isEnd) {
        JsonValue member;
        skipSpace();
        member.namePlace = {m_line, column(m_position)};
        if (!take(quote)) {
            return fail(QStringLiteral("a name in quotes is expected"));
        }
        if (!readString(member.name)) {
            return false;
        }
        if (!take(QLatin1Char(':'))) {
            return fail(QStringLiteral("\":\" is expected"));
        }
        if (!readValue(member, depth + 1) || !readSeparator(QLatin1Char('}'), isEnd)) {
            return false;
        }
        object.items.push_back(std::move(member));
    }
    return true;
}

bool Reader::readItems(JsonValue& array, int depth) {
    bool isEnd = take(QLatin1Char(']'));
    while (!isEnd) {
        JsonValue item;
        if (!readValue(item, depth + 1) || !readSeparator(QLatin1Char(']'), isEnd)) {
            return false;
        }
        array.items.push_back(std::move(item));
    }
    return true;
}

bool Reader::readSeparator(QLatin1Char end, bool& isEnd) {
    isEnd = take(end);
    const bool isComma = !isEnd && take(QLatin1Char(','));
    skipSpace();
    if (isComma && peek() == end) {
        return fail(QStringLiteral("there is a comma too many before \"%1\"").arg(end));
    }
    return isEnd || isComma || fail(QStringLiteral("\",\" or \"%1\" is expected").arg(end));
}

bool Reader::readString(QString& string) {
    const int quoteBefore = m_position - 1;
    while (true) {
        const int begin = m_position;
        while (!atEnd() && peek() != quote && peek() != backslash && peek().unicode() >= 0x20) {
            ++m_position;
        }
        string += m_text.midRef(begin, m_position - begin);
        if (atEnd() || peek() == QLatin1Char('\n')) {
            return failAt(quoteBefore, QStringLiteral("the string is not closed"));
        }
        if (peek() == quote) {
            ++m_position;
            return true;
        }
        if (peek() != backslash) {
            return fail(QStringLiteral("a control character in a string"));
        }
        if (!readEscape(string)) {
            return false;
        }
    }
}

bool Reader::readEscape(QString& string) {
    const int begin = m_position++;
    for (const Escape& escape : escapes) {
        if (peek() == QLatin1Char(escape.letter)) {
            ++m_position;
            string += QChar(escape.meaning);
            return true;
        }
    }
    bool isHexadecimal = false;
    const QStringRef digits = m_text.midRef(m_position + 1, 4);
    const ushort unit = digits.toUShort(&isHexadecimal, 16);
    if (peek() != QLatin1Char('u') || digits.size() != 4 || !isHexadecimal) {
        return failAt(begin, QStringLiteral("a backslash in a string must be doubled"));
    }
    m_position += 5;
    string += QChar(unit);
    return true;
}

// Nobody asks for the value of a number, so that its form isn't looked at closely.
bool Reader::readWord(JsonValue& value) {
    const int begin = m_position;
    while (peek().isLetterOrNumber() || peek() == QLatin1Char('-') || peek() == QLatin1Char('+') ||
           peek() == QLatin1Char('.')) {
        ++m_position;
    }
    const QStringRef word = m_text.midRef(begin, m_position - begin);
    value.text = word.toString();
    if (word == QLatin1String("true") || word == QLatin1String("false")) {
        value.kind = JsonValue::Kind::Boolean;
    } else if (!word.isEmpty() && (word.at(0).isDigit() || word.at(0) == QLatin1Char('-'))) {
        value.kind = JsonValue::Kind::Number;
    } else if (word != QLatin1String("null")) {
        const bool isComment = peek() == QLatin1Char('/');
        return failAt(begin,
                      isComment ? QStringLiteral("JSON has no comments") : QStringLiteral("a value is expected"));
    }
    return true;
}

bool Reader::take(QLatin1Char wanted) {
    skipSpace();
    const bool isThere = peek() == wanted;
    m_position += isThere ? 1 : 0;
    return isThere;
}

void Reader::skipSpace() {
    while (peek() == QLatin1Char(' ') || peek() == QLatin1Char('\t') || peek() == QLatin1Char('\r') ||
           peek() == QLatin1Char('\n')) {
        if (m_text.at(m_position++) == QLatin1Char('\n')) {
            ++m_line;
            m_lineBegin = m_position;
        }
    }
}

bool Reader::fail(const QString& message) {
    return failAt(m_position, message);
}

bool Reader::failAt(int position, const QString& message) {
    m_fault = {m_line, column(position), message};
    return false;
}

} // namespace

std::optional<JsonValue> parseJson(const QByteArray& json, JsonFault& fault) {
    const std::optional<QString> text = decoded(json.startsWith("\xEF\xBB\xBF") ? json.mid(3) : json);
    if (!text) {
        const bool isUtf16 = json.startsWith("\xFF\xFE") || json.startsWith("\xFE\xFF");
        fault = {0, 0,
                 isUtf16 ? QStringLiteral("the file is UTF-16; it must be saved as UTF-8")
                         : QStringLiteral("the file is not UTF-8")};
        return std::nullopt;
    }
    JsonValue value;
    if (!Reader(*text, fault).readWhole(value)) {
        return std::nullopt;
    }
    return value;
}

JsonValue JsonValue::string(const QString& name, const QString& text) {
    return {Kind::String, 1, 1, {}, name, text, {}};
}

JsonValue JsonValue::number(const QString& name, qint64 number) {
    return {Kind::Number, 1, 1, {}, name, QString::number(number), {}};
}

JsonValue JsonValue::array(const QString& name) {
    return {Kind::Array, 1, 1, {}, name, {}, {}};
}

JsonValue JsonValue::object(const QString& name) {
    return {Kind::Object, 1, 1, {}, name, {}, {}};
}

const JsonValue* JsonValue::member(QLatin1String wanted) const {
    const auto found =
        std::find_if(items.begin(), items.end(), [wanted](const JsonValue& item) { return item.name == wanted; });
    return kind == Kind::Object && found != items.end() ? &*found : nullptr;
}

} // namespace Recordings
