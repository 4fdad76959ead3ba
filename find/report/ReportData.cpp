#include "find/report/ReportData.h"

#include "find/catalogue/FinderTypes.h"
#include "find/explain/IndexText.h"
#include "find/explain/TraceTree.h"
#include "find/explain/Words.h"
#include "find/record/NeutralRecording.h"
#include "find/record/Survey.h"
#include "find/report/NeutralTexts.h"
#include "find/report/SimilarNames.h"

namespace Find {

namespace {

constexpr std::size_t mostSimilar = 10;
constexpr int mostLines = 1000; ///< of how a list was made; whoever wants more replays the report

/// The types of all finders, each once.
QStringList typesOf(const std::vector<FinderEntry>& finders) {
    QStringList types;
    forEachFinder(finders, [&types](const FinderEntry& finder) {
        if (finder.finders.empty()) {
            types.append(QLatin1String(finder.type->name));
        }
    });
    types.removeDuplicates();
    return types;
}

QString titleOfList(const QString& index) {
    const FinderType* const type = finderTypeOfList(index);
    return type ? QString::fromLatin1(type->title) : index;
}

class Gatherer {
public:
    Gatherer(const Survey& survey, const std::vector<InstalledEntry>& shown, const Catalogue& games,
             const NeutralRecording& recording)
        : m_survey(survey)
        , m_shown(shown)
        , m_games(games)
        , m_recording(recording)
        , m_entries(installedEntries(entryEvents()))
        , m_similar(m_entries) {}

    std::vector<ReportedGame> games() const;
    std::vector<RuntimeAnswer> runtimes() const;
    std::vector<InstalledThing> others() const;
    std::vector<ReportedList> lists() const;

    /// What the plug-in's logs say went wrong, each once.
    QStringList loggedErrors() const;

private:
    TraceEvents entryEvents() const;
    TraceEvents neutralEvents(std::size_t first, std::size_t end) const;
    ReportedGame game(const Game& game, const GameSearch& search) const;
    void addSimilar(const Game& game, ReportedGame& reported) const;
    QString finderThatFound(const Game& game, const GameSearch& search) const;
    std::size_t endOfList(std::size_t begin) const;

    const Survey& m_survey;
    const std::vector<InstalledEntry>& m_shown;
    const Catalogue& m_games;
    const NeutralRecording& m_recording;
    std::vector<InstalledEntry> m_entries;
    SimilarNames m_similar;
};

/// Those that tell what is installed.
TraceEvents Gatherer::entryEvents() const {
    TraceEvents told;
    for (const TraceEvent& event : m_survey.events) {
        if (std::holds_alternative<Trace::Entry>(event) || std::holds_alternative<Trace::Shortcut>(event) ||
            std::holds_alternative<Trace::Package>(event) || std::holds_alternative<Trace::IndexBegin>(event) ||
            std::holds_alternative<Trace::IndexEnd>(event)) {
            told.push_back(neutralEvent(event, m_recording.neutral));
        }
    }
    return told;
}

TraceEvents Gatherer::neutralEvents(std::size_t first, std::size_t end) const {
    TraceEvents neutral;
    for (std::size_t i = first; i < end; ++i) {
        neutral.push_back(neutralEvent(m_survey.events[i], m_recording.neutral));
    }
    return neutral;
}

std::vector<ReportedGame> Gatherer::games() const {
    std::vector<ReportedGame> reported;
    for (std::size_t i = 0; i < m_games.size(); ++i) {
        reported.push_back(game(neutralGame(m_games[i], m_recording.neutral), m_survey.searches[i]));
    }
    return reported;
}

ReportedGame Gatherer::game(const Game& game, const GameSearch& search) const {
    ReportedGame reported;
    reported.answer = neutralAnswer(search.answer, m_recording.neutral);
    if (search.answer.found) {
        reported.finders = QStringList{finderThatFound(game, search)};
        return reported;
    }
    reported.finders = typesOf(game.finders);
    reported.explanation = explainSearch(game, neutralEvents(search.firstEvent, search.endOfEvents));
    addSimilar(game, reported);
    return reported;
}

void Gatherer::addSimilar(const Game& game, ReportedGame& reported) const {
    QStringList names;
    for (const InstalledEntry* const entry : m_similar.mentioning(searchWords(game))) {
        names.append(QStringLiteral("%1: %2").arg(QLatin1String(entry->type->title), entry->name) +
                     (entry->place.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(entry->place)));
    }
    names.removeDuplicates();
    reported.similar = names.mid(0, mostSimilar);
    reported.moreSimilar = names.size() - reported.similar.size();
}

std::vector<RuntimeAnswer> Gatherer::runtimes() const {
    std::vector<RuntimeAnswer> neutral;
    for (const RuntimeAnswer& answer : m_survey.runtimes) {
        neutral.push_back(neutralAnswer(answer, m_recording.neutral));
    }
    return neutral;
}

std::vector<InstalledThing> Gatherer::others() const {
    Catalogue games;
    std::vector<GameAnswer> answers;
    for (std::size_t i = 0; i < m_games.size(); ++i) {
        games.push_back(neutralGame(m_games[i], m_recording.neutral));
        answers.push_back(neutralAnswer(m_survey.searches[i].answer, m_recording.neutral));
    }
    std::vector<InstalledEntry> shown = m_shown;
    for (InstalledEntry& entry : shown) {
        entry.name = m_recording.neutral.text(entry.name);
        entry.place = m_recording.neutral.text(entry.place);
    }
    return unclaimed(m_entries, shown, FoundGames(games, answers));
}

/// The type of the innermost finder that found the game.
QString Gatherer::finderThatFound(const Game& game, const GameSearch& search) const {
    std::vector<int> asked;
    for (std::size_t i = search.firstEvent; i < search.endOfEvents; ++i) {
        const auto* const end = std::get_if<Trace::FinderEnd>(&m_survey.events[i]);
        if (const auto* const begin = std::get_if<Trace::FinderBegin>(&m_survey.events[i])) {
            asked.push_back(begin->number);
        } else if (end != nullptr && end->found) {
            break;
        } else if (end != nullptr && !asked.empty()) {
            asked.pop_back();
        }
    }
    const std::vector<FinderEntry>* finders = &game.finders;
    QString type;
    for (const int number : asked) {
        const auto place = static_cast<std::size_t>(number) - 1;
        if (place >= finders->size()) {
            break;
        }
        type = QLatin1String((*finders)[place].type->name);
        finders = &(*finders)[place].finders;
    }
    return type;
}

/// One behind the last event of the making of the list that begins there.
std::size_t Gatherer::endOfList(std::size_t begin) const {
    int open = 0;
    for (std::size_t i = begin; i < m_survey.events.size(); ++i) {
        open += std::holds_alternative<Trace::IndexBegin>(m_survey.events[i]) ? 1 : 0;
        open -= std::holds_alternative<Trace::IndexEnd>(m_survey.events[i]) ? 1 : 0;
        if (open == 0) {
            return i + 1;
        }
    }
    return m_survey.events.size();
}

std::vector<ReportedList> Gatherer::lists() const {
    std::vector<ReportedList> lists;
    for (std::size_t i = 0; i < m_survey.events.size(); ++i) {
        const auto* const begin = std::get_if<Trace::IndexBegin>(&m_survey.events[i]);
        if (begin == nullptr) {
            continue;
        }
        const TraceSection whole = traceTree(neutralEvents(i, endOfList(i)));
        const TraceSection& made = *std::get<std::unique_ptr<TraceSection>>(whole.parts.front());
        QStringList lines = describeIndex(made, {}).mid(1); // without the title
        lines.removeLast();                                 // and without the number of entries
        ReportedList list{titleOfList(begin->name), made.entries, lines.mid(0, mostLines), 0};
        list.moreLines = lines.size() - list.lines.size();
        lists.push_back(list);
    }
    return lists;
}

QStringList Gatherer::loggedErrors() const {
    QStringList errors;
    for (const TraceEvent& event : m_survey.events) {
        const auto* const log = std::get_if<Trace::Log>(&event);
        if (log != nullptr && log->level == QLatin1String("E")) {
            errors.append(m_recording.neutral.text(log->text));
        }
    }
    errors.removeDuplicates();
    return errors;
}

} // namespace

ReportData gatherReport(const Survey& survey, const std::vector<InstalledEntry>& shown, const Catalogue& games,
                        const NeutralRecording& recording, const QStringList& problems) {
    const Gatherer gatherer(survey, shown, games, recording);
    ReportData data;
    data.games = gatherer.games();
    data.runtimes = gatherer.runtimes();
    data.others = gatherer.others();
    data.lists = gatherer.lists();
    for (const QString& problem : problems) {
        data.faults.append(recording.neutral.text(problem));
    }
    for (const QString& path : recording.leftOut) {
        data.faults.append(QStringLiteral("not recorded: %1").arg(recording.neutral.text(path)));
    }
    data.faults += gatherer.loggedErrors();
    data.contents = amountsOf(recording.pc);
    for (const Recordings::PrivateName& name : recording.names) {
        (name.isEverywhere ? data.neutralNames : data.neutralFolders).append(name.neutral);
    }
    data.neutralNames.removeDuplicates();
    data.neutralFolders.removeDuplicates();
    return data;
}

} // namespace Find
