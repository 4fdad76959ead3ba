#pragma once

#include "core/GameLocation.h"
#include "find/catalogue/InstalledEntries.h"
#include "find/list/ListedGame.h"

#include <QStringList>

#include <vector>

class IGameFinderFactory;

namespace Find {

class PluginTrace;

/// Whether the entry is of a store's library: its name is an identifier, and its place the library's.
bool isOfLibrary(const InstalledEntry& entry);

/// Makes up finders for what is installed. Each is tried: what is proposed has found the thing on this PC.
class Proposer {
public:
    /// All borrowed; the trace was made before the factory. The entries are all that is installed.
    Proposer(IGameFinderFactory& factory, PluginTrace& trace, const std::vector<InstalledEntry>& entries);

    ListedGame propose(const InstalledEntry& entry);

private:
    /// What came of asking a finder, and what its trace says of the way.
    struct Search {
        bool isFound = false;
        GameLocation location;
        QStringList folders; ///< in which it looked for the executables
        QString target;      ///< of the shortcut
    };

    Search search(const FinderEntry& question);
    QString folderNameFor(const InstalledEntry& entry, FinderEntry question);
    QString onlyFolderLeft(const InstalledEntry& entry, const QString& games);
    bool complete(FinderEntry& question, ListedGame& game);
    bool tryExecutables(FinderEntry& question, const QStringList& executables, ListedGame& game);

    IGameFinderFactory& m_factory;
    PluginTrace& m_trace;
    const std::vector<InstalledEntry>& m_entries;
};

} // namespace Find
