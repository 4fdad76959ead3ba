#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Find {

struct FinderType;

/// One finder of a game, as the catalogue describes it. Which of the values mean something, and under which names the
/// catalogue has them, says the type.
struct FinderEntry {
    const FinderType* type = nullptr; ///< never null in a catalogue that was read; lives as long as the program
    QString subject;                  ///< what the finder searches for: a name, a title, an identifier, a folder
    QString folderName;
    QStringList executables;
    int matchMode = 0;
    std::vector<FinderEntry> finders; ///< the finders within a multi finder
};

struct Game {
    QString name;
    std::vector<FinderEntry> finders; ///< in the order in which they are tried
};

using Catalogue = std::vector<Game>;

/// Why a catalogue cannot be used.
struct CatalogueFault {
    int line = 0; ///< line and column count from 1; both 0 when the fault is one of the whole file
    int column = 0;
    QString message;
};

using CatalogueFaults = std::vector<CatalogueFault>;

/// The number of finders that one multi finder holds.
constexpr std::size_t mostFinders = 11;

/// The catalogue that a JSON text describes (docs/catalogue.md). No value when it has faults; `faults` are then all of
/// them in their order, or the first when the text is not JSON.
std::optional<Catalogue> parseCatalogue(const QByteArray& json, CatalogueFaults& faults);

/// The same for a file; "-" is standard input.
std::optional<Catalogue> readCatalogue(const QString& file, CatalogueFaults& faults);

/// The games of these names, each once and in the catalogue's order, letter case ignored; all when there are no names.
/// No value when names are not in the catalogue; `unknown` are then those.
std::optional<Catalogue> selectGames(const Catalogue& catalogue, const QStringList& names, QStringList& unknown);

/// Visits each finder, those within a multi finder behind it.
template <class Visit>
void forEachFinder(const std::vector<FinderEntry>& finders, const Visit& visit) {
    for (const FinderEntry& finder : finders) {
        visit(finder);
        forEachFinder(finder.finders, visit);
    }
}

/// The games' names, in the catalogue's order.
QStringList namesOf(const Catalogue& catalogue);

} // namespace Find
