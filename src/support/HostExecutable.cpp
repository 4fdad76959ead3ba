#include "support/HostExecutable.h"

#include "platform/Folders.h"
#include "platform/Process.h"
#include "support/Paths.h"

#include <array>

namespace {

struct HostExecutable {
    QString path;
    QString fileName;
};

HostExecutable askSystem() {
    std::array<char16_t, Platform::maxPath + 1> buffer{};
    if (Platform::moduleFileName(buffer.data(), Platform::maxPath) == 0) {
        return {};
    }
    const QString path = QString::fromUtf16(buffer.data());
    return {path, path.mid(path.lastIndexOf(Paths::separatorFor(path)) + 1)};
}

const HostExecutable& hostExecutable() {
    static const HostExecutable kept = askSystem();
    return kept;
}

} // namespace

QString hostExecutablePath() {
    return hostExecutable().path;
}

QString hostExecutableFileName() {
    return hostExecutable().fileName;
}
