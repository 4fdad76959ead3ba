#include "find/record/RecordedTexts.h"

#include "find/catalogue/FinderTypes.h"
#include "recordings/WindowsNames.h"

#include <QSet>

namespace Host {

namespace {

/// The keys whose names finders did not make up but read in a list.
QSet<QString> listedKeys(const TraceEvents& events) {
    QSet<QString> keys;
    for (const TraceEvent& event : events) {
        if (event.is("subkeys")) {
            const QStringList names = event.texts("names");
            for (const QString& name : names) {
                keys.insert(Recordings::foldName(event.text("key") + QLatin1Char('\\') + name));
            }
        }
    }
    return keys;
}

void addAskedNames(const TraceEvents& events, QStringList& places) {
    const QSet<QString> listed = listedKeys(events);
    for (const TraceEvent& event : events) {
        if (event.is("key") && !listed.contains(Recordings::foldName(event.text("key")))) {
            places.append(event.text("key"));
        } else if (event.is("value") || event.is("environment")) {
            places.append(event.text("name"));
        } else if (event.is("list")) {
            places.append(event.text("pattern"));
        }
    }
}

void addTextsOf(const std::vector<FinderEntry>& finders, QStringList& places) {
    static const FinderType* const folder = findFinderType(QStringLiteral("folder"));
    for (const FinderEntry& finder : finders) {
        addTextsOf(finder.finders, places);
        if (finder.type != folder) { // a folder's path is one of this PC, with its names
            places.append(finder.subject);
        }
        places += finder.executables;
        places.append(finder.folderName);
    }
}

} // namespace

RecordedTexts collectTexts(const TraceEvents& events, const Catalogue& games, const PcRecord& record) {
    RecordedTexts texts;
    addAskedNames(events, texts.places);
    for (const Game& game : games) {
        addTextsOf(game.finders, texts.places);
    }
    texts.places.removeDuplicates();
    texts.paths = record.drives().paths();
    for (const auto& [folded, key] : record.registry().keys()) {
        texts.paths.append((QStringList{key.root} + key.path).join(QLatin1Char('\\')));
    }
    return texts;
}

} // namespace Host
