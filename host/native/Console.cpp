#include "host/Console.h"

#include <QTextCodec>

namespace Host {

Console::Console() {
    // Under the locale "C", as in containers and services, Qt would lose every letter outside ASCII.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

Console::~Console() = default;

} // namespace Host
