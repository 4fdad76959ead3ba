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

} // namespace

QChar separatorFor(const QString& path) {
    return isWindowsPath(path) ? QChar(u'\\') : QDir::separator();
}

QString toNative(const QString& path) {
    if (!isWindowsPath(path)) {
        return QDir::toNativeSeparators(path);
    }
    QString native = path;
    native.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return native;
}

QString join(const QString& folder, const QString& name) {
    return folder + separatorFor(folder) + name;
}

QString cleaned(const QString& path) {
    return toNative(QDir::cleanPath(withSlashes(path)));
}

QString absoluteFolderOf(const QString& path) {
    return QFileInfo(withSlashes(path)).absolutePath();
}

} // namespace Paths
