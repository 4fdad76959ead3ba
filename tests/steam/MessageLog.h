#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// What goes to Qt's message log while this lives, as "info: text". One at a time.
class MessageLog {
public:
    MessageLog() { m_previous = qInstallMessageHandler(handle); }

    ~MessageLog() {
        qInstallMessageHandler(m_previous);
        log().clear();
    }

    QStringList messages() const { return log(); }

private:
    Q_DISABLE_COPY_MOVE(MessageLog)

    static QStringList& log() {
        static QStringList log;
        return log;
    }

    static void handle(QtMsgType type, const QMessageLogContext&, const QString& text) {
        const QString name = type == QtInfoMsg ? "info: " : type == QtCriticalMsg ? "critical: " : "other: ";
        log().append(name + text);
    }

    QtMessageHandler m_previous = nullptr;
};
