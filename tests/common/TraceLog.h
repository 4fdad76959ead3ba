#pragma once

#include "support/Trace.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <ostream>
#include <vector>

/// So that a failed expectation shows the event.
inline void PrintTo(const QJsonObject& event, std::ostream* stream) {
    *stream << QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString();
}

/// Has the library under test, linked into the test, tell its trace as long as this lives.
class TraceLog {
public:
    TraceLog() {
        m_lines.open(QIODevice::WriteOnly);
        QCoreApplication::instance()->setProperty(Trace::deviceProperty, QVariant::fromValue<QObject*>(&m_lines));
        Trace::begin();
        EXPECT_TRUE(Trace::isOn());
    }

    ~TraceLog() {
        QCoreApplication::instance()->setProperty(Trace::deviceProperty, QVariant());
        Trace::begin();
    }

    QByteArray bytes() const { return m_lines.data(); }

    /// All events of this name, or all when it is empty.
    std::vector<QJsonObject> events(const QString& name = {}) const {
        std::vector<QJsonObject> events;
        for (const QByteArray& line : bytes().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            EXPECT_TRUE(line.isEmpty() || !event.isEmpty()) << line.toStdString();
            if (!event.isEmpty() && (name.isEmpty() || event["event"].toString() == name)) {
                events.push_back(event);
            }
        }
        return events;
    }

    /// A field of all events of this name.
    QStringList texts(const QString& name, const QString& field) const {
        QStringList texts;
        for (const QJsonObject& event : events(name)) {
            texts.append(event[field].toString());
        }
        return texts;
    }

    QStringList notes() const { return texts("note", "text"); }

private:
    Q_DISABLE_COPY_MOVE(TraceLog)

    QBuffer m_lines;
};
