#pragma once

#include <QByteArray>
#include <QString>

namespace Find {

/// What the Steam client's manifest of an app says of it. Empty where it says nothing, or can't be read: of a recorded
/// PC, which has only its name.
struct SteamManifest {
    QString name;
    QString folderName; ///< in the library's "common" folder
};

SteamManifest parseSteamManifest(const QByteArray& text);

/// The manifest of the app that the library with this "common" folder has.
SteamManifest readSteamManifest(const QString& commonFolder, const QString& appId);

} // namespace Find
