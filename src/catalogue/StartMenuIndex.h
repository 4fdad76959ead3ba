#pragma once

#include "support/BuiltOnce.h"
#include "support/NameTable.h"

#include <QStringList>

#include <vector>

/// The full paths of all Start-menu shortcuts, with native separators, the user's before those of all users. A Start
/// menu that is missing, or that takes 30 seconds or longer to walk, adds none. Writes no log.
///
/// Built at the first question, whichever that is, and unchanged after it; any thread may ask. What is returned points
/// into the index.
class StartMenuIndex {
public:
    const QStringList& entries();

    /// The shortcuts with this name (the file's without ".lnk"), by `matchMode` (support/NameTable.h), in index order.
    std::vector<const QString*> findByName(const QString& name, int matchMode);

private:
    struct Catalogue {
        QStringList entries;
        NameTable<QString> names;
    };

    const Catalogue& catalogue();
    static void build(Catalogue& catalogue);

    BuiltOnce<Catalogue> m_catalogue;
};
