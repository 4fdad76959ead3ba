#pragma once

#include "support/Index.h"

#include <QString>

#include <list>
#include <vector>

class Logger;

/// One game of the Windows Games Explorer, as registered. A value that is missing is empty.
struct GamesExplorerEntry {
    QString keyName;
    QString title;
    QString appExePath;
    QString configApplicationPath; ///< a folder
};

/// The games of the Windows Games Explorer, those of the 32-bit view first. A game that both views show is there twice.
/// Empty on a system without the catalogue.
class GamesExplorerIndex final : public Index<std::list<GamesExplorerEntry>> {
public:
    GamesExplorerIndex();

    /// The entries with this title, letter case ignored, in index order.
    std::vector<GamesExplorerEntry> findByTitle(const QString& title);

private:
    void build(std::list<GamesExplorerEntry>& entries) override;
    void read(quint32 view, std::list<GamesExplorerEntry>& entries, Logger& logger);

    NameTable<GamesExplorerEntry> m_titles;
};
