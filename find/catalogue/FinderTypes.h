#pragma once

#include "core/IGameFinder.h"
#include "find/catalogue/Catalogue.h"

#include <memory>
#include <variant>
#include <vector>

class IGameFinderFactory;

namespace Host {

/// One field of a finder in the catalogue: its name, and where its value goes. The value's type follows from that.
struct FinderField {
    using Target = std::variant<QString FinderEntry::*, QStringList FinderEntry::*, int FinderEntry::*,
                                std::vector<FinderEntry> FinderEntry::*>;

    const char* name;
    Target target;
};

/// A kind of finder: its name and fields in the catalogue, and the factory's operation that makes one. Numbers may be
/// left out of an entry, everything else must be there.
struct FinderType {
    using Make = std::unique_ptr<IGameFinder> (*)(IGameFinderFactory&, const FinderEntry&);

    const char* name;
    std::vector<FinderField> fields;
    Make make;
};

/// All kinds, in the order of the factory's operations.
const std::vector<FinderType>& finderTypes();

/// The kind of that name; null when there is none.
const FinderType* findFinderType(const QString& name);

/// A multi finder of at most `mostFinders` entries. Null when the factory gives none; a member that the factory does
/// not give is left out.
std::unique_ptr<IGameFinder> makeMultiFinder(IGameFinderFactory& factory, const std::vector<FinderEntry>& entries);

} // namespace Host
