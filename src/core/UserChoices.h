#pragma once

#include "platform/Settings.h"

#include <QString>

#include <memory>

namespace Finders {

/// The folders that the user chose, one value a game: shared with the host. Open while this object lives, and written
/// out when it goes.
class UserChoices {
public:
    explicit UserChoices(std::unique_ptr<Platform::UserSettings> settings = Platform::openUserLocations())
        : m_settings(std::move(settings)) {}

    ~UserChoices() { m_settings->sync(); }

    QString value(const QString& key) const { return m_settings->value(key, emptyText()); }

    void setValue(const QString& key, const QString& folder) { m_settings->setValue(key, folder); }

    void remove(const QString& key) { m_settings->remove(key); }

    static QString emptyText() { return QString(QLatin1String("")); }

private:
    Q_DISABLE_COPY_MOVE(UserChoices)

    std::unique_ptr<Platform::UserSettings> m_settings;
};

} // namespace Finders
