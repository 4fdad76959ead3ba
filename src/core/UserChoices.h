#pragma once

#include "platform/Folders.h"

#include <QSettings>
#include <QString>

namespace Finders {

/// The folders that the user chose, one value a game: shared with the host. Open while this object lives, and written
/// out when it goes. `Settings` is QSettings, or a test's stand-in.
template <class Settings>
class UserChoices {
public:
    UserChoices()
        : m_settings(QSettings::UserScope, QLatin1String("Veltrane"), QLatin1String("Quorvan")) {
        m_settings.beginGroup(QLatin1String("UserProvidedLocations"));
    }

    ~UserChoices() { m_settings.sync(); }

    /// On a recorded PC, what is not in the settings of who replays it can be in those that were recorded.
    QString value(const QString& key) const {
        const QString recorded = Platform::recordedUserLocation(key);
        return m_settings.value(key, recorded.isEmpty() ? emptyText() : recorded).toString();
    }

    void setValue(const QString& key, const QString& folder) { m_settings.setValue(key, folder); }

    void remove(const QString& key) { m_settings.remove(key); }

    static QString emptyText() { return QString(QLatin1String("")); }

private:
    Q_DISABLE_COPY_MOVE(UserChoices)

    Settings m_settings;
};

} // namespace Finders
