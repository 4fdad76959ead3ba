#pragma once

#include "core/GameLocation.h"
#include "core/IGameFinder.h"

#include <QStringList>

/// A finder that does as it is told and notes what it was asked.
class ScriptedFinder final : public IGameFinder {
public:
    struct Script {
        bool finds = false;
        QString userLocation;
        QString installFolder; ///< written into the location by every search, unless it is empty
    };

    ScriptedFinder(const QString& name, const Script& script, QStringList* notes)
        : m_name(name)
        , m_script(script)
        , m_notes(notes) {}

    ~ScriptedFinder() override { m_notes->append(m_name + " destroyed"); }

    bool find(GameLocation& location) override {
        m_notes->append(m_name + " find");
        if (!m_script.installFolder.isEmpty()) {
            location.installFolder = m_script.installFolder;
        }
        return m_script.finds;
    }

    QString userLocation() override { return m_script.userLocation; }

    void setUserLocation(const QString& path) override { m_notes->append(m_name + " set " + path); }

private:
    QString m_name;
    Script m_script;
    QStringList* m_notes;
};
