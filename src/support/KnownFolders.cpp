#include "support/KnownFolders.h"

#include "platform/Folders.h"
#include "support/Trace.h"

#include <QDir>

#include <array>

namespace {

using PathBuffer = std::array<char16_t, Platform::maxPath>;

template <class FolderFunction>
QString ask(FolderFunction folderFunction, int csidl) {
    PathBuffer buffer{};
    if (folderFunction(csidl, buffer.data()) < 0) {
        return QString();
    }
    buffer.back() = u'\0';
    return QString::fromUtf16(buffer.data());
}

int csidlOf(int kind) {
    switch (kind) {
    case FolderKind::commonAppData:
        return Platform::csidlCommonAppData;
    case FolderKind::personal:
        return Platform::csidlPersonal;
    default:
        return Platform::csidlLocalAppData;
    }
}

} // namespace

QString knownFolderPath(int csidl) {
    const QString path = ask(Platform::folderPath, csidl);
    Trace::tell([&] { return Trace::ShellFolder{csidl, path}; });
    return path;
}

QString makeMakerFolderPath(int kind, const QString& sub) {
    const QString folder = ask(Platform::ownFolderPath, csidlOf(kind));
    return folder + QDir::separator() + QLatin1String("Veltrane") + QDir::separator() + sub;
}
