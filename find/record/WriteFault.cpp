#include "find/record/WriteFault.h"

#include "find/pc/System.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <system_error>

namespace Find {

namespace {

/// The nearest thing above that is there; empty when not even the share is.
QString nearestAbove(const QString& path) {
    QString above = QFileInfo(path).absolutePath();
    while (!QFileInfo::exists(above)) {
        const QString next = QFileInfo(above).absolutePath();
        if (next == above) {
            return {};
        }
        above = next;
    }
    return above;
}

QString causeAgainst(const QString& path, bool areFoldersMade) {
    const QString parent = QFileInfo(path).absolutePath();
    const QString drive = missingDrive(parent);
    if (!drive.isEmpty()) {
        return QStringLiteral("there is no drive %1").arg(drive);
    }
    const QString nearest = nearestAbove(path);
    if (!nearest.isEmpty() && !QFileInfo(nearest).isDir()) {
        return QStringLiteral("%1 is not a folder").arg(QDir::toNativeSeparators(nearest));
    }
    if (nearest.isEmpty() || (nearest != parent && !areFoldersMade)) {
        return QStringLiteral("there is no folder %1").arg(QDir::toNativeSeparators(parent));
    }
    return QFileInfo(nearest).isWritable() ? QString()
                                           : QStringLiteral("%1 is read-only").arg(QDir::toNativeSeparators(nearest));
}

} // namespace

QString causeAgainstFile(const QString& path) {
    return causeAgainst(path, false);
}

QString causeAgainstFolder(const QString& path) {
    return causeAgainst(path, true);
}

QString causeOf(QFileDevice::FileError error, const QString& systemsText) {
    switch (error) {
    case QFileDevice::ResourceError:
        return QStringLiteral("the disk is full");
    case QFileDevice::PermissionsError:
        return QStringLiteral("it is read-only");
    default:
        return systemsText;
    }
}

QString causeOf(int error) {
    switch (error) {
    case ENOSPC:
        return causeOf(QFileDevice::ResourceError, {});
    case EACCES:
    case EPERM:
    case EROFS:
        return causeOf(QFileDevice::PermissionsError, {});
    default:
        return QString::fromStdString(std::generic_category().message(error));
    }
}

} // namespace Find
