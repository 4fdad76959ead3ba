#include "find/pc/System.h"

#include <QFile>

namespace Find {

bool setEnvironmentVariable(const char* name, const QString& value) {
    return value.isEmpty() ? qunsetenv(name) : qputenv(name, QFile::encodeName(value));
}

bool openFile(const QString& /*file*/) {
    return false; // nothing is started by a double click here
}

bool isPcItself() {
    return false;
}

} // namespace Find
