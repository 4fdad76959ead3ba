#include "find/terminal/Console.h"

#include "find/terminal/OneLine.h"
#include "find/terminal/TextWidth.h"

#include <QByteArray>
#include <QLatin1String>
#include <QProcessEnvironment>
#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace Find {

namespace {

int passingColumns = 0; // of the passing line that stands on the terminal
bool isKeeping = false;
std::vector<Complaint> kept;

} // namespace

Terminal Console::terminal(Stream stream) {
    return describeTerminal(facts(stream), QProcessEnvironment::systemEnvironment());
}

bool Console::print(const QString& text) {
    showPassingLine(QString());
    return write(Stream::Output, text);
}

void Console::complain(const Complaint& complaint) {
    if (isKeeping) {
        kept.push_back(complaint);
        return;
    }
    showPassingLine(QString());
    write(Stream::Errors, QLatin1String("luruludri-find: ") + oneLine(complaint.text()) + QLatin1Char('\n'));
}

void Console::keepComplaints() {
    isKeeping = true;
}

std::vector<Complaint> Console::takeComplaints() {
    isKeeping = false;
    return std::exchange(kept, {});
}

void Console::showPassingLine(const QString& line) {
    const int columns = displayWidth(line);
    if (columns == 0 && passingColumns == 0) {
        return;
    }
    const QString begin = QStringLiteral("\r");
    const QString rest(std::max(0, passingColumns - columns), QLatin1Char(' '));
    write(Stream::Errors, begin + line + rest + (columns == 0 ? begin : QString()));
    passingColumns = columns;
}

bool Console::writeUtf8(Stream stream, const QString& text) {
    std::FILE* const file = stream == Stream::Output ? stdout : stderr;
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<std::size_t>(utf8.size());
    return std::fwrite(utf8.constData(), 1, size, file) == size && std::fflush(file) == 0;
}

void Console::complainOfQtMessages() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && type != QtInfoMsg) {
            complain(message);
        }
    });
}

} // namespace Find
