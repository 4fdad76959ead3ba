#include "support/HostExecutable.h"

#include "platform/Folders.h"
#include "platform/Process.h"
#include "support/Paths.h"

#include <array>

namespace {

const HostExecutable& hostExecutable() {
    static const HostExecutable kept = HostExecutable::from(Platform::moduleFileName);
    return kept;
}

} // namespace

HostExecutable HostExecutable::from(ModuleFileName moduleFileName) {
    std::array<char16_t, Platform::maxPath + 1> buffer{}; // with an end, also after a path that fills all of maxPath
    if (moduleFileName(buffer.data(), Platform::maxPath) == 0) {
        return {};
    }
    const QString path = QString::fromUtf16(buffer.data());
    return {path, path.mid(path.lastIndexOf(Paths::separatorFor(path)) + 1)};
}

QString hostExecutablePath() {
    return hostExecutable().path;
}

QString hostExecutableFileName() {
    return hostExecutable().fileName;
}
