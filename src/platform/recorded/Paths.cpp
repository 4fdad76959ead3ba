#include "platform/Paths.h"

#include "platform/recorded/PcPaths.h"
#include "recordings/WindowsPath.h"

#include <QDir>
#include <QFileInfo>

namespace Platform {

namespace {

using Recordings::Path;

constexpr QLatin1Char slash('/');

bool isReplay() {
    return Recorded::currentPc()->isActive();
}

QString absoluteText(const Path& path) {
    return path.absolute(Recorded::currentDrive(*Recorded::currentPc()));
}

// QDir::absolutePath
QString absoluteFolderText(const QString& folder) {
    const Path path(Path(folder).asFolder());
    if (!path.isRelative() && path.isClean()) {
        return path.text();
    }
    return Path(absoluteText(path)).cleaned();
}

// The length of what a path that begins with a separator keeps of the folder that it is resolved against.
int driveLength(const QString& folder) {
    if (!folder.startsWith(QLatin1String("//"))) {
        return folder.size() > 1 && folder.at(1) == QLatin1Char(':') && folder.at(0).isLetter() ? 2 : 0;
    }
    int end = 2;
    for (int names = 0; names < 2; ++names) {
        while (end < folder.size() && folder.at(end) == slash) {
            ++end;
        }
        if (end == folder.size()) {
            return 0;
        }
        end = folder.indexOf(slash, end) < 0 ? folder.size() : folder.indexOf(slash, end);
    }
    return end;
}

// QDir::absoluteFilePath
QString absoluteFileText(const QString& folder, const QString& fileName) {
    const Path name(fileName);
    if (name.isAbsolute() || (fileName.contains(QLatin1Char(':')) && !name.isRelative())) {
        return fileName;
    }
    const QString base = absoluteFolderText(folder);
    if (fileName.isEmpty()) {
        return base;
    }
    if (name.text().startsWith(slash)) {
        const int drive = driveLength(base);
        return drive > 0 ? base.left(drive) + fileName : QString();
    }
    return base.endsWith(slash) ? base + fileName : base + slash + fileName;
}

// Where QDir::cd leads: nowhere when it is above a root.
std::optional<QString> targetOf(const QString& folder, const QString& name) {
    const QString from = Path(folder).asFolder();
    if (!Path(name).isRelative()) {
        return Path(name).cleaned();
    }
    QString target = from.endsWith(slash) ? from + name : from + slash + name;
    if (name.contains(slash) || name == QLatin1String("..") || from == QLatin1String(".")) {
        target = Path(target).cleaned();
        if (!Path(target).isRelative() && !Path(target).isClean()) { // ".." is left
            return std::nullopt;
        }
    }
    return target;
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
    return path.isEmpty() ? path : Path::folderOf(absoluteText(Path(path)));
}

QString writtenFolder(const QString& folder) {
    return isReplay() ? Path(folder).asFolder() : QDir(folder).path();
}

QString absoluteFolder(const QString& folder) {
    return isReplay() ? absoluteFolderText(folder) : QDir(folder).absolutePath();
}

QString absoluteFilePath(const QString& folder, const QString& fileName) {
    return isReplay() ? absoluteFileText(folder, fileName) : QDir(folder).absoluteFilePath(fileName);
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
    const std::optional<QString> target = targetOf(folder, name);
    const bool isThere = target && QDir(*target).exists();
    folder = isThere ? Path(*target).asFolder() : folder;
    return isThere;
}

} // namespace Platform
