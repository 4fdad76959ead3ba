#include "find/pc/System.h"

#include <cstdlib>
#include <string>

namespace Find {

bool setEnvironmentVariable(const char* name, const QString& value) {
    return _wputenv_s(QString::fromLatin1(name).toStdWString().c_str(), value.toStdWString().c_str()) == 0;
}

bool isPcItself() {
    return true;
}

} // namespace Find
