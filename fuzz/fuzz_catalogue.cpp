#include "find/catalogue/Catalogue.h"
#include "find/catalogue/FinderTypes.h"
#include "fuzz/Fuzz.h"

#include <QSet>

namespace {

void check(const std::vector<Find::FinderEntry>& finders) {
    Fuzz::require(finders.size() <= Find::mostFinders, "no more finders than a game can have");
    for (const Find::FinderEntry& finder : finders) {
        Fuzz::require(finder.type != nullptr, "a finder of a known type");
        check(finder.finders);
    }
}

void checkFault(const Find::CatalogueFault& fault, const QByteArray& text) {
    Fuzz::require(!fault.message.isEmpty(), "a fault is told");
    Fuzz::require((fault.line == 0) == (fault.column == 0), "a place or none");
    Fuzz::require(fault.line >= 0 && fault.line <= text.count('\n') + text.count('\r') + 1, "a line of the text");
    Fuzz::require(fault.column >= 0 && fault.column <= text.size() + 1, "a column of the text");
}

} // namespace

/// A catalogue is read whole, with its games by distinct names, or has faults that are told with their places in the
/// text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray text = Fuzz::bytesOf(data, size);
    Find::CatalogueFaults faults;
    const std::optional<Find::Catalogue> catalogue = Find::parseCatalogue(text, faults);
    Fuzz::require(catalogue.has_value() == faults.empty(), "either a catalogue or faults");
    for (const Find::CatalogueFault& fault : faults) {
        checkFault(fault, text);
    }
    if (!catalogue) {
        return 0;
    }
    QSet<QString> names;
    for (const Find::Game& game : *catalogue) {
        Fuzz::require(!names.contains(game.name), "a name once");
        names.insert(game.name);
        check(game.finders);
        QStringList unknown;
        const auto selected = Find::selectGames(*catalogue, {game.name}, unknown);
        Fuzz::require(selected && selected->size() == 1 && selected->front().name == game.name, "found by its name");
    }
    return 0;
}
