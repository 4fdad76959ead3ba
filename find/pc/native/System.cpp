#include "find/pc/System.h"

#include <QFile>

#include <sys/mman.h>

namespace Find {

bool setEnvironmentVariable(const char* name, const QString& value) {
    return value.isEmpty() ? qunsetenv(name) : qputenv(name, QFile::encodeName(value));
}

QString fileInMemory(const QByteArray& contents) {
    const int descriptor = ::memfd_create("recording", MFD_CLOEXEC);
    QFile file;
    const bool isKept = descriptor >= 0 && file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                        file.write(contents) == contents.size();
    return isKept ? QStringLiteral("/proc/self/fd/%1").arg(descriptor) : QString();
}

QString missingDrive(const QString& /*path*/) {
    return {}; // no path is on any
}

bool openFile(const QString& /*file*/) {
    return false; // nothing is started by a double click here
}

bool isPcItself() {
    return false;
}

} // namespace Find
