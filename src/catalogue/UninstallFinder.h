#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class UninstallIndex;
struct UninstallEntry;

namespace Finders {

/// Finds a program by its display name in the Uninstall registry: looks for its executables in the registered install
/// location, then beside its uninstaller. The first entry that yields any wins.
class UninstallFinder final : public AbstractFinder {
public:
    /// `index` is borrowed; must outlive the finder.
    UninstallFinder(Logger* logger, UninstallIndex* index, const QString& displayName, const QStringList& executables,
                    int matchMode);

    /// False with the location untouched when no entry has the name; otherwise a failed search leaves it reset, with
    /// the last folder looked in as its `installFolder`.
    bool find(GameLocation& location) override;

private:
    bool findBy(const UninstallEntry& entry, GameLocation& location) const;
    bool findInInstallLocation(const UninstallEntry& entry, GameLocation& location) const;
    bool findBesideUninstaller(const UninstallEntry& entry, GameLocation& location) const;

    UninstallIndex* m_index;
    QString m_displayName;
    QStringList m_executables;
    int m_matchMode;
};

} // namespace Finders
