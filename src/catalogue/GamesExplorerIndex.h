#pragma once

#include "support/BuiltOnce.h"
#include "support/NameTable.h"

#include <QString>

#include <list>
#include <vector>

/// One game of the Windows Games Explorer, as registered. A value that is missing is empty.
struct GamesExplorerEntry {
    QString keyName;
    QString title;
    QString appExePath;
    QString configApplicationPath; ///< a folder
};

/// The games of the Windows Games Explorer, those of the 32-bit view first. A game that both views show is there twice.
/// Empty on a system without the catalogue.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class GamesExplorerIndex {
public:
    const std::list<GamesExplorerEntry>& entries();

    /// The entries with this title, letter case ignored, in index order.
    std::vector<const GamesExplorerEntry*> findByTitle(const QString& title);

private:
    struct Catalogue {
        std::list<GamesExplorerEntry> entries;
        NameTable<GamesExplorerEntry> titles;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue> m_catalogue;
};
