#pragma once

#include "find/catalogue/Catalogue.h"

#include <QString>

#include <optional>

namespace Find {

/// Something that is installed, as one of the lists has it.
struct ListedGame {
    QString name;
    QString list;                      ///< the list's title
    QString folder;                    ///< empty when no folder is known
    std::optional<FinderEntry> finder; ///< that finds it; none when none was found that does
};

} // namespace Find
