#include "support/Files.h"

#include "support/Paths.h"
#include "support/Trace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

namespace Files {

namespace {

QPair<QString, QJsonValue> tracedPath(const QString& path) {
    return {QStringLiteral("path"), Paths::toNative(path)};
}

bool told(const QString& path, bool found) {
    if (Trace::isOn()) {
        Trace::tell("exists", {tracedPath(path), {QStringLiteral("found"), found}});
    }
    return found;
}

} // namespace

bool exists(const QString& path) {
    return told(path, QFile::exists(path));
}

bool folderExists(const QString& folder) {
    return told(Platform::writtenFolder(folder), QDir(folder).exists());
}

bool enter(QString& folder, const QString& name) {
    return Platform::changeFolder(folder, name);
}

QStringList names(const QString& folder, const QString& pattern) {
    // Unsorted, as QDir::NoSort means "as the QDir is told to sort by itself".
    const QStringList names = QDir(folder).entryList({pattern}, QDir::Files | QDir::NoDotAndDotDot, QDir::Unsorted);
    if (Trace::isOn()) {
        Trace::tell("list", {tracedPath(folder),
                             {QStringLiteral("pattern"), pattern},
                             {QStringLiteral("names"), QJsonArray::fromStringList(names)}});
    }
    return names;
}

QByteArray readWholeFile(const QString& path) {
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (Trace::isOn()) {
        Trace::tell("read", {tracedPath(path), {QStringLiteral("bytes"), bytes.size()}});
    }
    return bytes;
}

QString shortcutTarget(const QString& path) {
    const QString target = QFileInfo(path).symLinkTarget();
    if (Trace::isOn()) {
        Trace::tell("shortcut", {tracedPath(path), {QStringLiteral("target"), Paths::toNative(target)}});
    }
    return target;
}

} // namespace Files
