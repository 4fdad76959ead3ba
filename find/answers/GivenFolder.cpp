#include "find/answers/GivenFolder.h"

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
    const int quote = argument.indexOf(QLatin1Char('"'));
    if (quote < 0 || QFileInfo::exists(argument)) {
        return {argument, {}};
    }
    return {argument.left(quote), argument.mid(quote + 1).trimmed()};
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
    const bool hasDrive = folder.size() > 1 && folder.at(1) == QLatin1Char(':');
    const bool isDriveThere = !hasDrive || QFileInfo::exists(folder.left(2) + QLatin1Char('/'));
    return isDriveThere ? QStringLiteral("%1: there is no such folder").arg(folder)
                        : QStringLiteral("%1: there is no drive %2").arg(folder, folder.left(2).toUpper());
}

} // namespace Find
