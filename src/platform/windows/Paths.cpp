#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>

namespace Platform {

QChar pathSeparator() {
    return QDir::separator();
}

QString toNativeSeparators(const QString& path) {
    return QDir::toNativeSeparators(path);
}

QString cleanPath(const QString& path) {
    return QDir::cleanPath(path);
}

QString absoluteFolderOf(const QString& path) {
    return QFileInfo(path).absolutePath();
}

QString writtenFolder(const QString& folder) {
    return QDir(folder).path();
}

QString absoluteFolder(const QString& folder) {
    return QDir(folder).absolutePath();
}

QString absoluteFilePath(const QString& folder, const QString& fileName) {
    return QDir(folder).absoluteFilePath(fileName);
}

QString pathOnPc(const QString& path) {
    return path;
}

bool changeFolder(QString& folder, const QString& name) {
    QDir dir(folder);
    const bool isThere = dir.cd(name);
    folder = isThere ? dir.path() : folder;
    return isThere;
}

} // namespace Platform
