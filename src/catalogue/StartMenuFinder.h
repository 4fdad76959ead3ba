#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class StartMenuIndex;

namespace Finders {

/// Finds a program through a Start-menu shortcut of its name whose target contains one of the expected executables.
/// The first such shortcut wins.
class StartMenuFinder final : public AbstractFinder {
public:
    /// `index` is borrowed; must outlive the finder.
    StartMenuFinder(Logger* logger, StartMenuIndex* index, const QString& name, const QStringList& executables,
                    int matchMode);

    /// The location's paths are the shortcut's target, with forward slashes, once for each executable that it contains.
    /// False with the location untouched when no shortcut has the name, with the location reset otherwise.
    bool find(GameLocation& location) override;

private:
    bool follow(const QString& shortcut, GameLocation& location) const;

    StartMenuIndex* m_index;
    QString m_name;
    QStringList m_executables;
    int m_matchMode;
};

} // namespace Finders
