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

const InstalledList* listOf(const QString& index) {
    const std::vector<InstalledList>& lists = installedLists();
    const auto found = std::find_if(lists.begin(), lists.end(),
                                    [&](const InstalledList& list) { return index == QLatin1String(list.index); });
    return found == lists.end() ? nullptr : &*found;
}

/// Reads the entries out of a trace, in its order.
class EntryReader {
public:
    void operator()(const Trace::IndexBegin& event) { m_lists.push_back(listOf(event.name)); }

    void operator()(const Trace::IndexEnd&) {
        if (!m_lists.empty()) {
            m_lists.pop_back();
        }
    }

    void operator()(const Trace::Entry& event) {
        if (!m_lists.empty() && m_lists.back() != nullptr) {
            m_entries.push_back({m_lists.back(), event.name, event.folder});
        }
    }

    void operator()(const Trace::Shortcut& event) {
        if (!event.target.isEmpty()) {
            m_targets.insert(event.path, event.target);
        }
    }

    void operator()(const Trace::Package& event) {
        if (!event.fullName.isEmpty() && !m_packages.contains(event.family)) {
            m_packages.insert(event.family);
            m_entries.push_back({&installedLists().back(), event.family, event.fullName});
        }
    }

    template <class OtherEvent>
    void operator()(const OtherEvent&) {}

    /// With the shortcuts' targets, which are told later than the list of shortcuts.
    std::vector<InstalledEntry> entries() const {
        std::vector<InstalledEntry> entries = m_entries;
        for (InstalledEntry& entry : entries) {
            entry.place = m_targets.value(entry.place, entry.place);
        }
        return entries;
    }

private:
    std::vector<const InstalledList*> m_lists; ///< that are being made, the last one for that before it
    std::vector<InstalledEntry> m_entries;
    QHash<QString, QString> m_targets;
    QSet<QString> m_packages;
};

} // namespace

const std::vector<InstalledList>& installedLists() {
    static const std::vector<InstalledList> lists = {
        {"Uninstall", "Uninstall registry", "uninstall"},
        {"StartMenu", "Start menu", "startMenu"},
        {"SteamLibraries", "Steam", "steam"},
        {"EpicManifests", "Epic launcher", "epicStore"},
        {"OculusLibraries", "Oculus", "oculusStore"},
        {"GamesExplorer", "Games Explorer", "gameForWindow"},
        {"", "App packages", "universalApp"},
    };
    return lists;
}

std::vector<InstalledEntry> installedEntries(const TraceEvents& events) {
    EntryReader reader;
    for (const TraceEvent& event : events) {
        std::visit(reader, event);
    }
    return reader.entries();
}

FoundGames::FoundGames(const Catalogue& games, const std::vector<GameAnswer>& answers) {
    for (std::size_t i = 0; i < games.size() && i < answers.size(); ++i) {
        if (answers[i].found) {
            m_folders.insert(foldedPath(answers[i].location.installFolder));
            add(games[i].finders);
        }
    }
}

void FoundGames::add(const std::vector<FinderEntry>& finders) {
    constexpr int isPartOfName = 1;
    for (const FinderEntry& finder : finders) {
        add(finder.finders);
        m_subjects.insert(subjectKey(finder.type->name, finder.subject));
        if (finder.matchMode == isPartOfName && !finder.subject.isEmpty()) {
            m_parts.push_back(finder);
        }
    }
}

bool FoundGames::have(const InstalledEntry& entry) const {
    if (m_subjects.contains(subjectKey(entry.list->finder, entry.name))) {
        return true;
    }
    for (QString place = foldedPath(entry.place); !place.isEmpty();
         place.truncate(std::max(0, place.lastIndexOf(backslash)))) {
        if (m_folders.contains(place)) {
            return true;
        }
    }
    return std::any_of(m_parts.begin(), m_parts.end(), [&entry](const FinderEntry& finder) {
        return QLatin1String(finder.type->name) == QLatin1String(entry.list->finder) &&
               entry.name.contains(finder.subject, Qt::CaseInsensitive);
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

std::vector<InstalledThing> unclaimed(const std::vector<InstalledEntry>& entries, const FoundGames& games) {
    std::vector<InstalledThing> things;
    QHash<QString, std::size_t> known;
    for (const InstalledEntry& entry : entries) {
        if (games.have(entry)) {
            continue;
        }
        const QString key = Recordings::foldName(entry.name) + QLatin1Char('\n') + foldedPath(entry.place);
        if (!known.contains(key)) {
            known.insert(key, things.size());
            things.push_back({entry.name, {}, entry.place});
        }
        addLists({QLatin1String(entry.list->title)}, things[known.value(key)]);
    }
    return withPlaces(things);
}

} // namespace Find
