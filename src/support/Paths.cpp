#include "support/Paths.h"

#include <QDir>
#include <QFileInfo>

namespace Paths {

namespace {

bool isWindowsPath(const QString& path) {
    if (path.startsWith(QLatin1String("\\\\"))) {
        return true;
    }
    if (path.size() < 2 || path.at(1) != QLatin1Char(':')) {
        return false;
    }
    const ushort letter = path.at(0).toUpper().unicode();
    return letter >= 'A' && letter <= 'Z';
}

QString withSlashes(QString path) {
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString withBackslashes(QString path) {
    return path.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

} // namespace

QChar separatorFor(const QString& path) {
    return isWindowsPath(path) ? QChar(u'\\') : QDir::separator();
}

QString toNative(const QString& path) {
    return isWindowsPath(path) ? withBackslashes(path) : QDir::toNativeSeparators(path);
}

QString join(const QString& folder, const QString& name) {
    return folder + separatorFor(folder) + name;
}

QString cleaned(const QString& path) {
    if (!isWindowsPath(path)) {
        return toNative(QDir::cleanPath(withSlashes(path)));
    }
    // Without the drive, or the first of two separators, it is a path that Qt knows everywhere.
    const int start = path.at(1) == QLatin1Char(':') ? 2 : 1;
    return path.left(start) + withBackslashes(QDir::cleanPath(withSlashes(path.mid(start))));
}

QString absoluteFolderOf(const QString& path) {
    const QString slashes = withSlashes(path);
    const bool isNetworkPath = slashes.startsWith(QLatin1String("//"));
    if (!isNetworkPath || QDir::separator() == QLatin1Char('\\')) {
        return QFileInfo(slashes).absolutePath();
    }
    const QString clean = slashes.at(0) + QDir::cleanPath(slashes.mid(1));
    return clean.left(clean.lastIndexOf(QLatin1Char('/')));
}

} // namespace Paths
