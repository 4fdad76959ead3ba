#include "find/list/Proposer.h"

#include "core/IGameFinderFactory.h"
#include "find/catalogue/FinderTypes.h"
#include "find/explain/PluginTrace.h"
#include "find/list/GameExecutables.h"
#include "find/list/SteamManifest.h"
#include "find/pc/AnsweringPc.h"
#include "find/record/Probe.h"

#include <algorithm>

namespace Find {

namespace {

QString fileNameOf(const QString& path) {
    const auto end = std::find_if(path.rbegin(), path.rend(), isSeparator);
    return path.right(static_cast<int>(std::distance(path.rbegin(), end)));
}

QString folderOf(const QString& path) {
    return path.left(std::max(path.size() - fileNameOf(path).size() - 1, 0));
}

template <class Entry>
bool isOf(const Entry& entry, const char* type) {
    return entry.type == findFinderType(QLatin1String(type));
}

bool hasExecutables(const FinderType& type) {
    return std::any_of(type.fields.begin(), type.fields.end(), [](const FinderField& field) {
        return std::holds_alternative<QStringList FinderEntry::*>(field.target);
    });
}

/// Where a store keeps the folders of the games, seen from what its list tells.
QString gamesFolder(const InstalledEntry& entry) {
    return isOf(entry, "oculusStore") ? folderOf(entry.place) + QStringLiteral("/Software") : entry.place;
}

bool isOfTheSameLibrary(const InstalledEntry& a, const InstalledEntry& b) {
    return a.type == b.type && a.place == b.place;
}

} // namespace

bool isOfLibrary(const InstalledEntry& entry) {
    return isOf(entry, "steam") || isOf(entry, "oculusStore");
}

Proposer::Proposer(IGameFinderFactory& factory, PluginTrace& trace, const std::vector<InstalledEntry>& entries)
    : m_factory(factory)
    , m_trace(trace)
    , m_entries(entries) {}

Proposer::Search Proposer::search(const FinderEntry& question) {
    Search search;
    m_trace.take();
    if (const std::unique_ptr<IGameFinder> finder = question.type->make(m_factory, question)) {
        search.isFound = finder->find(search.location);
    }
    for (const TraceEvent& event : m_trace.take()) {
        if (const auto* const exists = std::get_if<Trace::Exists>(&event)) {
            if (const std::optional<QString> folder = folderOfProbe(exists->path)) {
                search.folders.append(*folder);
            }
        } else if (const auto* const shortcut = std::get_if<Trace::Shortcut>(&event)) {
            search.target = shortcut->target;
        }
    }
    return search;
}

/// The only folder of a library that bears the name of none of its apps, when only this app has no folder of its name.
QString Proposer::onlyFolderLeft(const InstalledEntry& entry, const QString& games) {
    QStringList folders = subFoldersOf(games);
    if (folders.contains(entry.name, Qt::CaseInsensitive)) {
        return entry.name;
    }
    int apps = 0;
    for (const InstalledEntry& other : m_entries) {
        if (isOfTheSameLibrary(other, entry)) {
            ++apps;
        }
    }
    return apps == 1 && folders.size() == 1 ? folders.constFirst() : QString();
}

/// The name of the folder that the game has in its store's library; empty when it cannot be told.
QString Proposer::folderNameFor(const InstalledEntry& entry, FinderEntry question) {
    const QString games = gamesFolder(entry);
    if (isOf(question, "steam")) {
        const QString named = readSteamManifest(games, entry.name).folderName;
        if (!named.isEmpty()) {
            return named;
        }
        question.executables = QStringList{probeName()};
        const QStringList folders = search(question).folders; // by the Uninstall registry, which needs no name
        if (!folders.isEmpty()) {
            return fileNameOf(folders.constFirst());
        }
    }
    return onlyFolderLeft(entry, games);
}

bool Proposer::tryExecutables(FinderEntry& question, const QStringList& executables, ListedGame& game) {
    question.executables = executables;
    const Search answer = search(question);
    if (answer.isFound) {
        game.folder = QString(answer.location.installFolder.constData(), answer.location.installFolder.size());
        game.finder = question;
    }
    return answer.isFound;
}

bool Proposer::complete(FinderEntry& question, ListedGame& game) {
    question.executables = QStringList{probeName()};
    const Search probe = search(question);
    if (probe.isFound) { // whatever its executables are
        const QString executable = fileNameOf(probe.location.executablePath);
        return tryExecutables(question, hasExecutables(*question.type) ? QStringList{executable} : QStringList(), game);
    }
    if (!probe.target.isEmpty() && tryExecutables(question, {fileNameOf(probe.target)}, game)) {
        return true;
    }
    for (const QString& folder : probe.folders) {
        const QStringList executables = gameExecutables(folder, game.name);
        if (game.folder.isEmpty()) {
            game.folder = folder;
        }
        if (!executables.isEmpty() && tryExecutables(question, executables, game)) {
            return true;
        }
    }
    return false;
}

ListedGame Proposer::propose(const InstalledEntry& entry) {
    ListedGame game{entry.name, QLatin1String(entry.type->title), entry.place, {}};
    FinderEntry question;
    question.type = entry.type;
    question.subject = entry.name;
    if (isOfLibrary(entry)) {
        question.folderName = folderNameFor(entry, question);
        const QString title = isOf(question, "steam") ? readSteamManifest(entry.place, entry.name).name : QString();
        game.name = !title.isEmpty() ? title : !question.folderName.isEmpty() ? question.folderName : entry.name;
        game.folder.clear();
    }
    complete(question, game);
    return game;
}

} // namespace Find
