#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace Host {

/// One event of the library's trace (docs/trace.md). A field that is missing, or of another type, reads as empty.
class TraceEvent {
public:
    TraceEvent(const QJsonObject& fields)
        : m_fields(fields) {}

    /// Whether it is an event of this name.
    bool is(const char* event) const { return text("event") == QLatin1String(event); }

    QString text(const char* field) const;
    qint64 number(const char* field) const;
    bool flag(const char* field) const;
    QStringList texts(const char* field) const;

    bool has(const char* field) const { return m_fields.contains(QLatin1String(field)); }

private:
    QJsonObject m_fields;
};

using TraceEvents = std::vector<TraceEvent>;

/// The events of a trace in the order in which they were told. Lines that are none are passed over, the last one too
/// while it is being written.
TraceEvents parseTrace(const QByteArray& lines);

} // namespace Host
