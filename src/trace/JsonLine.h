#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// A JSON object on one line, in UTF-8, its fields in the order in which they are added. Loses nothing when memory runs
/// out half-way, as QJsonObject does.
class JsonLine {
public:
    void add(const char* name, const QString& text);
    void add(const char* name, const QStringList& texts);
    void add(const char* name, qint64 number);
    void add(const char* name, bool flag);

    /// The line, its end included.
    QByteArray end() const { return m_fields.isEmpty() ? QByteArray("{}\n") : '{' + m_fields + "}\n"; }

private:
    void begin(const char* name);

    QByteArray m_fields;
};
