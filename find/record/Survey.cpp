#include "find/record/Survey.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/Plugin.h"
#include "find/explain/PluginTrace.h"
#include "find/record/Questions.h"
#include "find/terminal/Progress.h"

#include <iterator>

namespace Find {

namespace {

void takeOver(QStringList& texts) {
    for (QString& text : texts) {
        text.detach();
    }
}

/// Makes the answer's texts its own: those of the plug-in may lie in its file.
void takeOver(GameLocation& location) {
    location.launchCommand.detach();
    location.executablePath.detach();
    location.installFolder.detach();
    takeOver(location.executablePaths);
}

class Surveyor {
public:
    Surveyor(IGameFinderFactory& factory, PluginTrace& trace, Survey& survey)
        : m_factory(factory)
        , m_trace(trace)
        , m_survey(survey) {}

    void askForGames(const Catalogue& games, Progress& progress) {
        for (const Game& game : games) {
            progress.step(static_cast<int>(m_survey.searches.size()) + 1, static_cast<int>(games.size()), game.name);
            const std::size_t firstEvent = events().size();
            GameAnswer answer = askForGame(m_factory, game);
            takeOver(answer.location);
            m_survey.searches.push_back({answer, firstEvent, events().size()});
        }
    }

    void askForRuntimes() {
        m_survey.runtimes = Find::askForRuntimes(m_factory);
        for (RuntimeAnswer& answer : m_survey.runtimes) {
            takeOver(answer.values);
        }
    }

    /// All that was told until now.
    const TraceEvents& events() {
        TraceEvents taken = m_trace.take();
        std::move(taken.begin(), taken.end(), std::back_inserter(m_survey.events));
        return m_survey.events;
    }

private:
    IGameFinderFactory& m_factory;
    PluginTrace& m_trace;
    Survey& m_survey;
};

void askAll(IGameFinderFactory& factory, const Catalogue& games, PluginTrace& trace, Survey& survey) {
    Progress progress(QStringLiteral("asking"));
    Surveyor surveyor(factory, trace, survey);
    surveyor.askForGames(games, progress);
    surveyor.askForRuntimes();
    askForTheRest(
        factory, games, [&surveyor]() -> const TraceEvents& { return surveyor.events(); }, progress);
    surveyor.events();
}

} // namespace

Survey surveyPc(const QString& pluginFile, const Catalogue& games, QString& fault, const MoreQuestions& askMore) {
    Survey survey;
    PluginTrace trace;
    withPlugin(pluginFile, fault, [&](IGameFinderFactory& factory) {
        askAll(factory, games, trace, survey);
        if (askMore) {
            askMore(factory, trace, survey);
        }
    });
    if (fault.isEmpty() && survey.events.empty()) {
        fault = QStringLiteral("the plug-in did not tell what it read");
    }
    return survey;
}

} // namespace Find
