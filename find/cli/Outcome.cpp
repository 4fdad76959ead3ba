#include "find/cli/Outcome.h"

#include "find/record/WriteFault.h"
#include "find/terminal/Console.h"

#include <cerrno>

namespace Find {

ExitStatus fail(const Complaint& complaint) {
    Console::complain(complaint);
    return failed;
}

ExitStatus afterPrinting(bool isPrinted, ExitStatus status) {
    return isPrinted ? status : fail(QStringLiteral("the answers could not be written: ") + causeOf(errno));
}

ExitStatus print(const QString& text, ExitStatus status) {
    return afterPrinting(Console::print(text), status);
}

} // namespace Find
