#include "trace/JsonLine.h"

namespace {

QByteArray quoted(const QString& text) {
    QString escaped(QLatin1Char('"'));
    for (const QChar character : text) {
        if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            escaped += QLatin1Char('\\');
        }
        if (character < QLatin1Char(' ')) {
            escaped += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            escaped += character;
        }
    }
    return (escaped + QLatin1Char('"')).toUtf8();
}

} // namespace

void JsonLine::begin(const char* name) {
    if (!m_fields.isEmpty()) {
        m_fields += ',';
    }
    m_fields += '"';
    m_fields += name;
    m_fields += "\":";
}

void JsonLine::add(const char* name, const QString& text) {
    begin(name);
    m_fields += quoted(text);
}

void JsonLine::add(const char* name, const QStringList& texts) {
    begin(name);
    m_fields += '[';
    for (const QString& text : texts) {
        if (!m_fields.endsWith('[')) {
            m_fields += ',';
        }
        m_fields += quoted(text);
    }
    m_fields += ']';
}

void JsonLine::add(const char* name, qint64 number) {
    begin(name);
    m_fields += QByteArray::number(number);
}

void JsonLine::add(const char* name, bool flag) {
    begin(name);
    m_fields += flag ? "true" : "false";
}
