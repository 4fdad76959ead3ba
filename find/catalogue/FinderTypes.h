#pragma once

#include "core/IGameFinder.h"
#include "find/catalogue/Catalogue.h"
#include "find/catalogue/InstalledEntries.h"

#include <QStringList>

#include <memory>
#include <variant>
#include <vector>

class IGameFinderFactory;

namespace Find {

/// What finders can be asked for on a PC, as far as it is known.
struct Inventory {
    std::vector<FinderEntry> catalogue; ///< every finder of the catalogue's games, those within multi finders too
    std::vector<InstalledEntry> installed;
    QStringList packageFamilies;
    QStringList userChoiceKeys;
};

/// One field of a finder in the catalogue: its name, and where its value goes. The value's type follows from that.
struct FinderField {
    using Target = std::variant<QString FinderEntry::*, QStringList FinderEntry::*, int FinderEntry::*,
                                std::vector<FinderEntry> FinderEntry::*>;

    const char* name;
    Target target;
};

/// A kind of finder, with all that the program knows of it: whoever adds a create operation to the factory adds a row
/// here.
struct FinderType {
    using Make = std::unique_ptr<IGameFinder> (*)(IGameFinderFactory&, const FinderEntry&);
    using Questions = std::vector<FinderEntry> (*)(const FinderType&, const Inventory&);

    const char* name;                ///< in the catalogue
    const char* operation;           ///< the factory's operation that makes one
    const char* index;               ///< the list that it searches, as the trace names it; empty when that has none
    const char* title;               ///< of what it searches, for people; empty when that is no list
    std::vector<FinderField> fields; ///< numbers may be left out of a catalogue's entry, everything else must be there
    Make make;

    /// What such a finder is asked for so that it looks at all that it can look at on a PC. Types and executables of
    /// the entries are whoever asks's own.
    Questions questions;
};

/// All kinds, in the order of the factory's operations.
const std::vector<FinderType>& finderTypes();

/// The kind of that name; null when there is none.
const FinderType* findFinderType(const QString& name);

/// The kind that searches the list of that name in the trace; null when there is none.
const FinderType* finderTypeOfList(const QString& index);

/// A multi finder of at most `mostFinders` entries. Null when the factory gives none; a member that the factory does
/// not give is left out.
std::unique_ptr<IGameFinder> makeMultiFinder(IGameFinderFactory& factory, const std::vector<FinderEntry>& entries);

} // namespace Find
