#pragma once

#include "find/answers/Answers.h"
#include "find/catalogue/Catalogue.h"
#include "find/catalogue/InstalledEntries.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// What the games that were found are known by, to tell whose an entry is.
class FoundGames {
public:
    /// A game and its answer have the same place in both.
    FoundGames(const Catalogue& games, const std::vector<GameAnswer>& answers);

    /// Whether the entry is of one of the games: what one of the game's finders searches for, or in the game's folder.
    bool have(const InstalledEntry& entry) const;

private:
    void add(const FinderEntry& finder);

    QSet<QString> m_folders;          ///< folded
    QSet<QString> m_subjects;         ///< finder and what it searches for, folded
    std::vector<FinderEntry> m_parts; ///< finders for which a part of a name is enough
};

/// Entries of the same name and place, put together.
struct InstalledThing {
    QString name;
    QStringList lists; ///< their titles
    QString place;
};

/// What is installed and belongs to none of the games that were found. `shown` are the same entries with the names and
/// places that people know them by.
std::vector<InstalledThing> unclaimed(const std::vector<InstalledEntry>& entries,
                                      const std::vector<InstalledEntry>& shown, const FoundGames& games);

} // namespace Find
