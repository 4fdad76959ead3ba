#include "platform/Process.h"

#include "platform/recorded/RecordedPc.h"

#include <QFile>

#include <algorithm>
#include <cstring>

#include <sys/auxv.h>
#include <unistd.h>

namespace Platform {

namespace {

QString ownExecutable() {
    char path[4096];
    const ssize_t size = ::readlink("/proc/self/exe", path, sizeof path);
    return size > 0 ? QFile::decodeName(QByteArray(path, static_cast<int>(size))) : QString();
}

} // namespace

quint32 moduleFileName(char16_t* buffer, quint32 size) {
    const QString& recorded = Recorded::currentPc()->description().hostExecutable;
    const QString path = recorded.isEmpty() ? ownExecutable() : recorded;
    if (path.isEmpty() || size == 0) {
        return 0;
    }
    const quint32 length = std::min(static_cast<quint32>(path.size()), size - 1);
    std::memcpy(buffer, path.utf16(), length * sizeof(char16_t));
    buffer[length] = u'\0';
    return length < static_cast<quint32>(path.size()) ? size : length;
}

quint32 currentProcessId() {
    return static_cast<quint32>(::getpid());
}

QProcessEnvironment systemEnvironment() {
    const auto pc = Recorded::currentPc();
    return pc->isActive() ? pc->description().environment : QProcessEnvironment::systemEnvironment();
}

bool isElevated() {
    return ::getauxval(AT_SECURE) != 0 || ::geteuid() != ::getuid() || ::getegid() != ::getgid();
}

} // namespace Platform
