#include "find/report/Installed.h"

#include "find/catalogue/FinderTypes.h"
#include "recordings/WindowsNames.h"

#include <QHash>

#include <algorithm>

namespace Find {

namespace {

constexpr QLatin1Char backslash('\\');

/// The path as all its spellings are: one kind of separator, none at the end, one letter case.
QString foldedPath(const QString& path) {
    QString folded = Recordings::foldName(path);
    folded.replace(QLatin1Char('/'), backslash);
    while (folded.contains(QLatin1String("\\\\"))) {
        folded.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    }
    while (folded.endsWith(backslash)) {
        folded.chop(1);
    }
    return folded;
}

QString subjectKey(const char* finder, const QString& subject) {
    return QLatin1String(finder) + QLatin1Char('\n') + Recordings::foldName(subject);
}

} // namespace

FoundGames::FoundGames(const Catalogue& games, const std::vector<GameAnswer>& answers) {
    for (std::size_t i = 0; i < games.size() && i < answers.size(); ++i) {
        if (answers[i].found) {
            m_folders.insert(foldedPath(answers[i].location.installFolder));
            forEachFinder(games[i].finders, [this](const FinderEntry& finder) { add(finder); });
        }
    }
}

void FoundGames::add(const FinderEntry& finder) {
    constexpr int isPartOfName = 1;
    m_subjects.insert(subjectKey(finder.type->name, finder.subject));
    if (finder.matchMode == isPartOfName && !finder.subject.isEmpty()) {
        m_parts.push_back(finder);
    }
}

bool FoundGames::have(const InstalledEntry& entry) const {
    if (m_subjects.contains(subjectKey(entry.type->name, entry.name))) {
        return true;
    }
    for (QString place = foldedPath(entry.place); !place.isEmpty();
         place.truncate(std::max(0, place.lastIndexOf(backslash)))) {
        if (m_folders.contains(place)) {
            return true;
        }
    }
    return std::any_of(m_parts.begin(), m_parts.end(), [&entry](const FinderEntry& finder) {
        return finder.type == entry.type && entry.name.contains(finder.subject, Qt::CaseInsensitive);
    });
}

namespace {

void addLists(const QStringList& lists, InstalledThing& thing) {
    thing.lists += lists;
    thing.lists.removeDuplicates();
}

/// The things without those of which no list tells where they are, where another does under the same name.
std::vector<InstalledThing> withPlaces(const std::vector<InstalledThing>& things) {
    QHash<QString, std::size_t> placed;
    std::vector<InstalledThing> kept;
    for (const bool hasPlace : {true, false}) {
        for (const InstalledThing& thing : things) {
            const QString name = Recordings::foldName(thing.name);
            if (thing.place.isEmpty() == hasPlace) {
                continue;
            }
            if (!hasPlace && placed.contains(name)) {
                addLists(thing.lists, kept[placed.value(name)]);
                continue;
            }
            placed.insert(name, kept.size());
            kept.push_back(thing);
        }
    }
    return kept;
}

} // namespace

std::vector<InstalledThing> unclaimed(const std::vector<InstalledEntry>& entries,
                                      const std::vector<InstalledEntry>& shown, const FoundGames& games) {
    std::vector<InstalledThing> things;
    QHash<QString, std::size_t> known;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const InstalledEntry& entry = shown[i];
        if (games.have(entries[i]) || games.have(entry)) {
            continue;
        }
        const QString key = Recordings::foldName(entry.name) + QLatin1Char('\n') + foldedPath(entry.place);
        if (!known.contains(key)) {
            known.insert(key, things.size());
            things.push_back({entry.name, {}, entry.place});
        }
        addLists({QLatin1String(entry.type->title)}, things[known.value(key)]);
    }
    return withPlaces(things);
}

} // namespace Find
