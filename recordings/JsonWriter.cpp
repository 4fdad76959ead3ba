#include "recordings/Json.h"

namespace Recordings {

namespace {

constexpr QLatin1Char quote('"');

/// Whether the unit at `position` is one of a pair, or none of a pair's at all.
bool isCharacter(const QString& text, int position) {
    const QChar unit = text.at(position);
    if (unit.isHighSurrogate()) {
        return position + 1 < text.size() && text.at(position + 1).isLowSurrogate();
    }
    return !unit.isLowSurrogate() || (position > 0 && text.at(position - 1).isHighSurrogate());
}

class Writer {
public:
    QByteArray write(const JsonValue& value) {
        writeValue(value, 0, false);
        return m_text.toUtf8() + '\n';
    }

private:
    void writeValue(const JsonValue& value, int depth, bool isInLine);
    void writeItems(const JsonValue& value, int depth, bool isInLine);
    void writeString(const QString& string);

    void beginLine(int depth) { m_text += QLatin1Char('\n') + QString(depth, QLatin1Char(' ')); }

    QString m_text;
};

void Writer::writeValue(const JsonValue& value, int depth, bool isInLine) {
    switch (value.kind) {
    case JsonValue::Kind::String:
        writeString(value.text);
        break;
    case JsonValue::Kind::Array:
        m_text += QLatin1Char('[');
        writeItems(value, depth, false);
        m_text += QLatin1Char(']');
        break;
    case JsonValue::Kind::Object:
        m_text += QLatin1Char('{');
        writeItems(value, depth, isInLine);
        m_text += QLatin1Char('}');
        break;
    default:
        m_text += value.kind == JsonValue::Kind::Null ? QStringLiteral("null") : value.text;
    }
}

void Writer::writeItems(const JsonValue& value, int depth, bool isInLine) {
    const bool isArray = value.kind == JsonValue::Kind::Array;
    const int inner = isInLine ? depth : depth + 1;
    QLatin1String separator("");
    for (const JsonValue& item : value.items) {
        m_text += separator;
        separator = QLatin1String(isInLine ? ", " : ",");
        if (!isInLine) {
            beginLine(inner);
        }
        if (!isArray) {
            writeString(item.name);
            m_text += QLatin1String(": ");
        }
        writeValue(item, inner, isArray || isInLine);
    }
    if (!isInLine && !value.items.empty()) {
        beginLine(depth);
    }
}

void Writer::writeString(const QString& string) {
    m_text += quote;
    for (int i = 0; i < string.size(); ++i) {
        const QChar character = string.at(i);
        const ushort unit = character.unicode();
        if (character == quote || character == QLatin1Char('\\')) {
            m_text += QLatin1Char('\\');
            m_text += character;
        } else if (character == QLatin1Char('\n')) {
            m_text += QLatin1String("\\n");
        } else if (unit < 0x20 || !isCharacter(string, i)) {
            m_text += QString::asprintf("\\u%04x", static_cast<unsigned>(unit));
        } else {
            m_text += character;
        }
    }
    m_text += quote;
}

} // namespace

QByteArray renderJson(const JsonValue& value) {
    return Writer().write(value);
}

} // namespace Recordings
