#pragma once

#include "support/BuiltOnce.h"

#include <QString>

#include <list>

/// One game of the Windows Games Explorer, as registered. A value that is missing is empty.
struct GamesExplorerEntry {
    QString keyName;
    QString title;
    QString appExePath;
    QString configApplicationPath; ///< a folder
};

/// The games of the Windows Games Explorer.
class GamesExplorerIndex {
private:
    BuiltOnce<std::list<GamesExplorerEntry>> m_entries;
};
