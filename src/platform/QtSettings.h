#pragma once

#include "platform/Settings.h"

#include <QSettings>

namespace Platform {

/// The settings where Qt keeps them for the user who runs the process.
class QtSettings final : public UserSettings {
public:
    QtSettings()
        : m_settings(QSettings::UserScope, QStringLiteral("Veltrane"), QStringLiteral("Quorvan")) {
        m_settings.beginGroup(QStringLiteral("UserProvidedLocations"));
    }

    QStringList allKeys() const override { return m_settings.allKeys(); }

    QString value(const QString& key, const QString& fallback) const override {
        return m_settings.value(key, fallback).toString();
    }

    void setValue(const QString& key, const QString& value) override { m_settings.setValue(key, value); }

    void remove(const QString& key) override { m_settings.remove(key); }

    void sync() override { m_settings.sync(); }

private:
    QSettings m_settings;
};

} // namespace Platform
