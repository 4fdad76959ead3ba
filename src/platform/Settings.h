#pragma once

#include <QString>
#include <QStringList>

#include <memory>

/// What the user of the PC set.
namespace Platform {

/// One group of an application's settings. Open while the object lives. Windows and a recorded PC ignore the letter
/// case of keys.
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

/// QSettings(QSettings::UserScope, organisation, application), and then beginGroup.
std::unique_ptr<UserSettings> openUserSettings(const QString& organisation, const QString& application,
                                               const QString& group);

} // namespace Platform
