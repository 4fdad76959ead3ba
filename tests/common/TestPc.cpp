#include "common/TestPc.h"

#include "platform/Folders.h"

#include <QDir>
#include <QFile>

#include <array>

QString ownPath(const QString& folder, const QString& name) {
    return folder + QDir::separator() + name;
}

QString TestPc::logFolder() {
    std::array<char16_t, Platform::maxPath> buffer{};
    if (Platform::ownFolderPath(Platform::csidlLocalAppData, buffer.data()) < 0) {
        return {};
    }
    return ownPath(ownPath(QString::fromUtf16(buffer.data()), "Veltrane"), "Logs");
}

QString TestPc::logPath(const QString& logger) {
    return ownPath(logFolder(), logger + ".log");
}

void TestPc::clearLogs() {
    QDir(logFolder()).removeRecursively();
}

QByteArray TestPc::log(const QString& logger) {
    QFile file(logPath(logger));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList TestPc::messages(const QString& logger) {
    constexpr int timeLength = 24; // "2024:03:07_14:05:09:042 "
    QStringList messages;
    const QStringList lines = QString::fromUtf8(log(logger)).split("\r\n", Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QString message = line.mid(timeLength);
        if (!message.startsWith("A: =====") && !message.startsWith("A: PID: ")) {
            messages.append(message);
        }
    }
    return messages;
}
