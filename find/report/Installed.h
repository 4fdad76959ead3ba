#pragma once

#include "find/answers/Answers.h"
#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// A list of what is installed: how the trace names it, how people do, and the finders that search it.
struct InstalledList {
    const char* index;
    const char* title;
    const char* finder;
};

/// The lists that finders search. App packages, of which the trace has no list, come last.
const std::vector<InstalledList>& installedLists();

/// One entry of such a list.
struct InstalledEntry {
    const InstalledList* list = nullptr; ///< never null in what `installedEntries` gives
    QString name;                        ///< a title, or an identifier where the list has no titles
    QString place;                       ///< a folder, or the file that a shortcut leads to; may be empty
};

/// All entries of all lists, as the trace tells of them.
std::vector<InstalledEntry> installedEntries(const TraceEvents& events);

/// What the games that were found are known by, to tell whose an entry is.
class FoundGames {
public:
    /// A game and its answer have the same place in both.
    FoundGames(const Catalogue& games, const std::vector<GameAnswer>& answers);

    /// Whether the entry is of one of the games: what one of the game's finders searches for, or in the game's folder.
    bool have(const InstalledEntry& entry) const;

private:
    void add(const std::vector<FinderEntry>& finders);

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

/// What is installed and belongs to none of the games that were found.
std::vector<InstalledThing> unclaimed(const std::vector<InstalledEntry>& entries, const FoundGames& games);

} // namespace Find
