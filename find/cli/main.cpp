#include "find/cli/JsonReply.h"
#include "find/cli/Program.h"
#include "find/terminal/Console.h"

#include <QCoreApplication>
#include <QLatin1String>

#include <new>

int main(int argc, char* argv[]) {
    const Find::Console console;
    Find::Console::complainOfQtMessages();
    try {
        QCoreApplication application(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("luruludri-find"));
        QCoreApplication::setApplicationVersion(QLatin1String(LURULUDRI_VERSION));
        return Find::runProgram(QCoreApplication::arguments());
    } catch (const std::bad_alloc&) {
        Find::failForMemory();
        Find::printLeftComplaints();
        return Find::failed;
    }
}
