#include "support/HostExecutable.h"

#include "platform/Folders.h"
#include "platform/Process.h"
#include "support/FirstOffered.h"

#include <QDir>

#include <array>
#include <memory>

namespace {

FirstOffered<const HostExecutable> kept;

const HostExecutable& hostExecutable() {
    return kept.getOrOffer(
        [] { return std::make_unique<const HostExecutable>(HostExecutable::from(Platform::moduleFileName)); });
}

} // namespace

HostExecutable HostExecutable::from(ModuleFileName moduleFileName) {
    std::array<char16_t, Platform::maxPath + 1> buffer{}; // with an end, also after a path that fills all of maxPath
    if (moduleFileName(buffer.data(), Platform::maxPath) == 0) {
        return {};
    }
    const QString path = QString::fromUtf16(buffer.data());
    // A recorded host is named as on its PC, every other one as here.
    const QChar separator = path.contains(QLatin1Char('\\')) ? QChar(u'\\') : QDir::separator();
    return {path, path.mid(path.lastIndexOf(separator) + 1)};
}

QString hostExecutablePath() {
    return hostExecutable().path;
}

QString hostExecutableFileName() {
    return hostExecutable().fileName;
}
