#include "find/list/SteamManifest.h"

#include <QFile>
#include <QRegularExpression>

namespace Find {

namespace {

QString valueOf(const QString& text, const char* key) {
    const QRegularExpression pair(QStringLiteral("\"%1\"\\s+\"((?:[^\"\\\\]|\\\\.)*)\"").arg(QLatin1String(key)),
                                  QRegularExpression::CaseInsensitiveOption);
    return pair.match(text)
        .captured(1)
        .replace(QLatin1String("\\\""), QLatin1String("\""))
        .replace(QLatin1String("\\\\"), QLatin1String("\\"));
}

} // namespace

SteamManifest parseSteamManifest(const QByteArray& text) {
    const QString pairs = QString::fromUtf8(text);
    return {valueOf(pairs, "name"), valueOf(pairs, "installdir")};
}

SteamManifest readSteamManifest(const QString& commonFolder, const QString& appId) {
    QFile file(QStringLiteral("%1/../appmanifest_%2.acf").arg(commonFolder, appId));
    return file.open(QIODevice::ReadOnly) ? parseSteamManifest(file.readAll()) : SteamManifest();
}

} // namespace Find
