#include "find/record/UsedParts.h"

#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"
#include "trace/ForeignFiles.h"
#include "trace/UninstallCommand.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Find {

namespace {

using Recordings::MapText;

QByteArray usedOfEpicManifest(const QByteArray& contents, const MapText& map) {
    const QJsonObject manifest = QJsonDocument::fromJson(contents).object();
    QJsonObject used;
    for (const QLatin1String name : ForeignFiles::EpicManifest::members) {
        if (manifest.value(name).isString()) {
            used.insert(name, map(manifest.value(name).toString()));
        }
    }
    return used.isEmpty() ? QByteArray() : QJsonDocument(used).toJson();
}

QByteArray usedOfLibraryFolders(const QByteArray& contents, const MapText& map) {
    const QLatin1String key = ForeignFiles::SteamLibraryFolders::pathKey;
    QString used;
    const QStringList lines = QString::fromUtf8(contents.constData()).split(QLatin1Char('\n')); // up to the first 0
    for (const QString& line : lines) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(key)) {
            used += key + map(trimmed.mid(key.size())) + QLatin1Char('\n');
        }
    }
    return used.toUtf8();
}

/// The least that finders make the same of as of `command`.
QString usedOfUninstallCommand(const QString& command) {
    const QString useless = UninstallCommand::uselessPartOf(command);
    if (!useless.isEmpty()) {
        return useless;
    }
    if (command.startsWith(QLatin1Char('"'))) {
        return QLatin1Char('"') + UninstallCommand::programOf(command) + QLatin1Char('"');
    }
    // Without quotes the last separator ends the folder, even one among the arguments.
    const int name = std::max(command.lastIndexOf(QLatin1Char('\\')), command.lastIndexOf(QLatin1Char('/'))) + 1;
    return command.left(command.indexOf(QLatin1Char(' '), name));
}

} // namespace

std::optional<QByteArray> usedContents(const QString& path, const QByteArray& contents, const MapText& map) {
    if (path.endsWith(ForeignFiles::EpicManifest::suffix, Qt::CaseInsensitive)) {
        return usedOfEpicManifest(contents, map);
    }
    const bool isLibraryFolders = path.endsWith(ForeignFiles::SteamLibraryFolders::fileName, Qt::CaseInsensitive);
    return isLibraryFolders ? std::make_optional(usedOfLibraryFolders(contents, map)) : std::nullopt;
}

QByteArray mappedContents(const QString& path, const QByteArray& contents, const MapText& map) {
    return usedContents(path, contents, map).value_or(QByteArray());
}

Recordings::RegValue usedValue(const Recordings::RegValue& value) {
    Recordings::RegValue used = value;
    if (value.type == Recordings::RegType::string) {
        const QString text = Recordings::fromUtf16(value.data);
        const QString whole = text.left(text.indexOf(QChar(u'\0')));
        const bool isCommand = value.name.compare(UninstallCommand::valueName, Qt::CaseInsensitive) == 0;
        used.data = Recordings::storedText(isCommand ? usedOfUninstallCommand(whole) : whole);
    } else if (value.type != Recordings::RegType::dword) {
        used.data.fill('\0');
    }
    return used;
}

} // namespace Find
