#include "find/record/RecordedTexts.h"

#include "find/catalogue/FinderTypes.h"
#include "find/record/AskedWords.h"
#include "recordings/RegValues.h"

namespace Find {

namespace {

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

RecordedTexts collectTexts(const TraceEvents& events, const Catalogue& games, const Recordings::Pc& pc,
                           const QString& profilesFolder) {
    RecordedTexts texts;
    texts.places = askedWords(events, pc, profilesFolder);
    for (const Game& game : games) {
        addTextsOf(game.finders, texts.places);
    }
    texts.places.removeDuplicates();
    pc.drives.visit(
        [&texts](const Recordings::DrivePath& path, const Recordings::File&) { texts.paths.append(path.text()); });
    pc.registry.visit(
        [&texts](Recordings::RegKey::Root root, const QStringList& path, const Recordings::RegistryNode& key) {
            texts.paths.append((QStringList{Recordings::rootName(root)} + path).join(QLatin1Char('\\')));
            for (const auto& [folded, value] : key.values()) {
                texts.others.append(Recordings::textOf(value.type, value.data).value_or(QString()));
            }
        });
    return texts;
}

} // namespace Find
