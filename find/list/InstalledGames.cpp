#include "find/list/InstalledGames.h"

#include "find/catalogue/CatalogueWriter.h"
#include "find/catalogue/FinderTypes.h"
#include "find/list/Proposer.h"
#include "find/record/Survey.h"
#include "find/terminal/OneLine.h"
#include "find/terminal/Progress.h"

#include <QSet>

namespace Find {

namespace {

/// Each once: what is in both views of the registry is told twice.
std::vector<InstalledEntry> withoutDoubles(const std::vector<InstalledEntry>& entries) {
    std::vector<InstalledEntry> once;
    QSet<QString> known;
    for (const InstalledEntry& entry : entries) {
        const QString key = QStringList{QLatin1String(entry.type->name), entry.name, entry.place}.join(QChar());
        if (!known.contains(key)) {
            known.insert(key);
            once.push_back(entry);
        }
    }
    return once;
}

std::vector<InstalledEntry> entriesOf(const TraceEvents& events) {
    const FinderType* const userChoices = findFinderType(QStringLiteral("userProvidedLocation"));
    std::vector<InstalledEntry> entries = installedEntries(events);
    for (const TraceEvent& event : events) {
        const auto* const choice = std::get_if<Trace::UserLocation>(&event);
        if (choice != nullptr && !choice->path.isEmpty()) {
            entries.push_back({userChoices, choice->key, choice->path});
        }
    }
    return withoutDoubles(entries);
}

/// Whether the game would be read when it is pasted into a catalogue.
bool canStandInACatalogue(const Game& game) {
    CatalogueFaults faults;
    const QString text = QStringLiteral("{\"games\": [%1]}").arg(catalogueText(game));
    return parseCatalogue(text.toUtf8(), faults).has_value();
}

std::vector<ListedGame> proposeAll(IGameFinderFactory& factory, PluginTrace& trace,
                                   const std::vector<InstalledEntry>& entries) {
    Proposer proposer(factory, trace, entries);
    Progress progress(QStringLiteral("trying"));
    std::vector<ListedGame> games;
    for (const InstalledEntry& entry : entries) {
        progress.step(static_cast<int>(games.size()) + 1, static_cast<int>(entries.size()), entry.name);
        ListedGame game = proposer.propose(entry);
        game.name = oneLine(game.name);
        if (game.finder && !canStandInACatalogue({game.name, {*game.finder}})) {
            game.finder.reset();
        }
        games.push_back(game);
    }
    return games;
}

} // namespace

std::vector<ListedGame> installedGames(const QString& pluginFile, QString& fault) {
    std::vector<ListedGame> games;
    surveyPc(pluginFile, {}, fault, [&games](IGameFinderFactory& factory, PluginTrace& trace, const Survey& survey) {
        games = proposeAll(factory, trace, entriesOf(survey.events));
    });
    return games;
}

std::vector<InstalledEntry> shownEntries(IGameFinderFactory& factory, PluginTrace& trace,
                                         std::vector<InstalledEntry> entries) {
    const std::vector<InstalledEntry> all = entries;
    Proposer proposer(factory, trace, all);
    for (InstalledEntry& entry : entries) {
        if (isOfLibrary(entry)) {
            const ListedGame game = proposer.propose(entry);
            entry.name = game.name;
            entry.place = game.folder;
        }
    }
    return entries;
}

} // namespace Find
