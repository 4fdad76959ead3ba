#include "find/explain/TraceReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

namespace Host {

QString TraceEvent::text(const char* field) const {
    return m_fields.value(QLatin1String(field)).toString();
}

qint64 TraceEvent::number(const char* field) const {
    return static_cast<qint64>(m_fields.value(QLatin1String(field)).toDouble());
}

bool TraceEvent::flag(const char* field) const {
    return m_fields.value(QLatin1String(field)).toBool();
}

QStringList TraceEvent::texts(const char* field) const {
    QStringList list;
    const QJsonArray items = m_fields.value(QLatin1String(field)).toArray();
    for (const QJsonValue item : items) {
        list.append(item.toString());
    }
    return list;
}

TraceEvents parseTrace(const QByteArray& lines) {
    TraceEvents events;
    for (int begin = 0; begin < lines.size();) {
        const int newline = lines.indexOf('\n', begin);
        const int end = newline < 0 ? lines.size() : newline;
        const QByteArray line = QByteArray::fromRawData(lines.constData() + begin, end - begin);
        const QJsonObject fields = QJsonDocument::fromJson(line).object();
        if (fields.value(QLatin1String("event")).isString()) {
            events.emplace_back(fields);
        }
        begin = end + 1;
    }
    return events;
}

} // namespace Host
