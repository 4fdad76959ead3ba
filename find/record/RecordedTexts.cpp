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
        if (const auto* const subKeys = std::get_if<Trace::SubKeys>(&event)) {
            for (const QString& name : subKeys->names) {
                keys.insert(Windows::foldName(subKeys->place.key + QLatin1Char('\\') + name));
            }
        }
    }
    return keys;
}

void addAskedNames(const TraceEvents& events, QStringList& places) {
    const QSet<QString> listed = listedKeys(events);
    for (const TraceEvent& event : events) {
        if (const auto* const key = std::get_if<Trace::Key>(&event)) {
            if (!listed.contains(Windows::foldName(key->place.key))) {
                places.append(key->place.key);
            }
        } else if (const auto* const value = std::get_if<Trace::Value>(&event)) {
            places.append(value->name);
        } else if (const auto* const variable = std::get_if<Trace::Environment>(&event)) {
            places.append(variable->name);
        } else if (const auto* const list = std::get_if<Trace::List>(&event)) {
            places.append(list->pattern);
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
