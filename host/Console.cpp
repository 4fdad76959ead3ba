#include "host/Console.h"

#include "host/OneLine.h"

#include <QByteArray>
#include <QLatin1String>
#include <QtGlobal>

#include <cstdio>

namespace Host {

namespace {

bool write(std::FILE* stream, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<std::size_t>(utf8.size());
    return std::fwrite(utf8.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

} // namespace

bool Console::print(const QString& text) {
    return write(stdout, text);
}

void Console::complain(const QString& message) {
    write(stderr, QLatin1String("luruludri-find: ") + oneLine(message) + QLatin1Char('\n'));
}

void Console::complainOfQtMessages() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg) {
            complain(message);
        }
    });
}

} // namespace Host
