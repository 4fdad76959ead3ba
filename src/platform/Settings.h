#pragma once

#include <QString>
#include <QStringList>

#include <memory>

/// The folders that the user of the PC chose for games, one value a game, under a key of the game's own.
namespace Platform {

/// Open while the object lives. Windows and a recorded PC ignore the letter case of keys.
class UserSettings {
public:
    virtual ~UserSettings() = default;

    virtual QStringList allKeys() const = 0;
    virtual QString value(const QString& key, const QString& fallback) const = 0; ///< as text
    virtual void setValue(const QString& key, const QString& value) = 0;
    virtual void remove(const QString& key) = 0;
    virtual void sync() = 0;

protected:
    UserSettings() = default;
    Q_DISABLE_COPY_MOVE(UserSettings)
};

/// QSettings(QSettings::UserScope, "Veltrane", "Quorvan") and then beginGroup("UserProvidedLocations"). In the seam, as
/// QSettings can't be pointed at a recording: setPath takes all settings of the process, the host's too, to a file that
/// would have to be written, and off Windows the letter case of keys counts.
std::unique_ptr<UserSettings> openUserLocations();

} // namespace Platform
