#include "find/terminal/Console.h"

#include <QTextCodec>

#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>
#include <string>

namespace Find {

struct Console::Before {};

Console::Console() {
    // Under the locale "C", as in containers and services, Qt would lose every letter outside ASCII.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

Console::~Console() = default;

TerminalFacts Console::facts(Stream stream) {
    const int descriptor = stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
    TerminalFacts facts;
    facts.isTerminal = isatty(descriptor) == 1;
    facts.obeysEscapes = facts.isTerminal;
    winsize size = {};
    if (facts.isTerminal && ioctl(descriptor, TIOCGWINSZ, &size) == 0) {
        facts.width = size.ws_col;
    }
    return facts;
}

bool Console::write(Stream stream, const QString& text) {
    return writeUtf8(stream, text);
}

bool Console::isOwnWindow() {
    return false; // a terminal here stays open
}

QString Console::readLine() {
    std::string line;
    return std::getline(std::cin, line) ? QString::fromStdString(line + '\n') : QString();
}

void Console::waitForKey() {
    readLine();
}

} // namespace Find
