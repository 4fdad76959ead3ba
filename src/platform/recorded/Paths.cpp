#include "platform/Paths.h"

#include "platform/recorded/PcPaths.h"
#include "recordings/WindowsPath.h"

#include <QDir>
#include <QFileInfo>

namespace Platform {

namespace {

using Recordings::Path;

bool isReplay() {
    return Recorded::currentPc()->isActive();
}

QChar currentDrive() {
    return Recorded::currentDrive(*Recorded::currentPc());
}

} // namespace

QChar pathSeparator() {
    return isReplay() ? QChar(u'\\') : QDir::separator();
}

QString toNativeSeparators(const QString& path) {
    return isReplay() ? Recordings::withBackslashes(path) : QDir::toNativeSeparators(path);
}

QString cleanPath(const QString& path) {
    return isReplay() ? Path(path).cleaned() : QDir::cleanPath(path);
}

QString absoluteFolderOf(const QString& path) {
    if (!isReplay()) {
        return QFileInfo(path).absolutePath();
    }
    return path.isEmpty() ? path : Path::folderOf(Path(path).absolute(currentDrive()));
}

QString writtenFolder(const QString& folder) {
    return isReplay() ? Path(folder).asFolder() : QDir(folder).path();
}

QString absoluteFolder(const QString& folder) {
    return isReplay() ? Path(folder).absoluteFolder(currentDrive()) : QDir(folder).absolutePath();
}

QString absoluteFilePath(const QString& folder, const QString& fileName) {
    return isReplay() ? Path(folder).absoluteFile(fileName, currentDrive()) : QDir(folder).absoluteFilePath(fileName);
}

QString pathOnPc(const QString& path) {
    return isReplay() ? Recorded::pathOnDrive(*Recorded::currentPc(), path) : path;
}

bool changeFolder(QString& folder, const QString& name) {
    if (!isReplay()) {
        QDir dir(folder);
        const bool isThere = dir.cd(name);
        folder = isThere ? dir.path() : folder;
        return isThere;
    }
    if (name.isEmpty() || name == QLatin1String(".")) {
        return true;
    }
    const std::optional<QString> entered = Path(folder).entered(name);
    const bool isThere = entered && QDir(pathOnPc(*entered)).exists();
    folder = isThere ? *entered : folder;
    return isThere;
}

} // namespace Platform
