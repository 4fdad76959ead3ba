#pragma once

#include "find/catalogue/Catalogue.h"
#include "find/catalogue/InstalledEntries.h"

#include <QStringList>

#include <vector>

namespace Find {

/// What finders can be asked for on a PC, as far as it is known.
struct Inventory {
    std::vector<FinderEntry> catalogue; ///< every finder of the catalogue's games, those within multi finders too
    std::vector<InstalledEntry> installed;
    QStringList packageFamilies;
    QStringList userChoiceKeys;
};

} // namespace Find
