#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class GamesExplorerIndex;
struct GamesExplorerEntry;

namespace Finders {

/// Finds a game by its title in the Windows Games Explorer: through its registered executable or, where that is
/// missing, through the finder's own executables in the registered folder. The first entry that yields any wins.
class GameForWindowFinder final : public AbstractFinder {
public:
    /// `index` is borrowed; must outlive the finder.
    GameForWindowFinder(Logger* logger, GamesExplorerIndex* index, const QString& title,
                        const QStringList& executables);

    /// The install folder has forward slashes when the registered executable was found, and is as registered
    /// otherwise. False with the location untouched when no entry has the title; otherwise a failed search leaves it
    /// reset.
    bool find(GameLocation& location) override;

private:
    bool findBy(const GamesExplorerEntry& entry, GameLocation& location) const;

    GamesExplorerIndex* m_index;
    QString m_title;
    QStringList m_executables;
};

} // namespace Finders
