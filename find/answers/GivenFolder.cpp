#include "find/answers/GivenFolder.h"

#include "find/pc/System.h"

#include <QDir>
#include <QFileInfo>

namespace Find {

namespace {

/// Whether the path means one folder wherever the program runs: on Windows "D:Games" and "\\Games" do not.
bool isFullPath(const QString& path) {
    const QString slashes = QDir::fromNativeSeparators(path);
    const bool hasRoot = slashes.mid(1, 2) == QLatin1String(":/") || slashes.startsWith(QLatin1String("//"));
    return QDir::isAbsolutePath(path) && (hasRoot || QDir::separator() == QLatin1Char('/'));
}

} // namespace

GivenFolder givenFolder(const QString& argument) {
    const int quote = isPcItself() ? argument.indexOf(QLatin1Char('"')) : -1;
    if (quote < 0) {
        return {argument, {}};
    }
    return {argument.left(quote), argument.mid(quote + 1).trimmed()};
}

QString withoutLastSeparators(const QString& folder) {
    QString bare = folder;
    while (bare.size() > 1 && QDir::fromNativeSeparators(bare).endsWith(QLatin1Char('/'))) {
        bare.chop(1);
    }
    return bare.endsWith(QLatin1Char(':')) ? folder : bare; // of a drive it means another folder
}

QString faultOfFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (!isFullPath(folder)) {
        return QStringLiteral("%1: is not a full path (the current folder is %2)")
            .arg(folder, QDir::toNativeSeparators(QDir::currentPath()));
    }
    if (info.isDir()) {
        return {};
    }
    if (info.exists()) {
        return QStringLiteral("%1: is not a folder").arg(folder);
    }
    const QString drive = missingDrive(folder);
    return drive.isEmpty() ? QStringLiteral("%1: there is no such folder").arg(folder)
                           : QStringLiteral("%1: there is no drive %2").arg(folder, drive);
}

} // namespace Find
