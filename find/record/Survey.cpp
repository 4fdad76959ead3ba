#include "find/record/Survey.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/Plugin.h"
#include "find/catalogue/FinderTypes.h"
#include "find/explain/PluginTrace.h"
#include "find/pc/AnsweringPc.h"
#include "find/record/Probe.h"
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

std::vector<FinderEntry> findersOf(const Catalogue& games) {
    std::vector<FinderEntry> all;
    for (const Game& game : games) {
        forEachFinder(game.finders, [&all](const FinderEntry& finder) { all.push_back(finder); });
    }
    return all;
}

/// Asks the plug-in for the games of a catalogue, for the runtimes, and then whatever else makes its finders look at
/// everything that they can look at: for all that its lists of what is installed have, whether the catalogue has it or
/// not. Of the latter the answers do not matter, but what the trace tells.
class Surveyor {
public:
    Surveyor(IGameFinderFactory& factory, PluginTrace& trace, Survey& survey)
        : m_factory(factory)
        , m_trace(trace)
        , m_survey(survey) {}

    void askForAll(const Catalogue& games) {
        takeEvents(); // of the factory's making
        askForGames(m_factory, games, m_progress, [this](GameAnswer& answer) { add(answer); });
        m_survey.runtimes = askForRuntimes(m_factory);
        for (RuntimeAnswer& answer : m_survey.runtimes) {
            takeOver(answer.values);
        }
        askForNothing();
        takeEvents();
        askForEverything(
            {findersOf(games), installedEntries(m_survey.events), registeredPackageFamilies(), userChoiceKeys()});
        takeEvents();
    }

private:
    void add(GameAnswer& answer) {
        takeOver(answer.location);
        const std::size_t firstEvent = m_survey.events.size();
        takeEvents();
        m_survey.searches.push_back({answer, firstEvent, m_survey.events.size()});
    }

    /// What no PC has. Whoever looks for it makes the list in which it looks.
    void askForNothing() {
        FinderEntry nothing;
        nothing.subject = probeName();
        nothing.folderName = probeName();
        for (const FinderType& type : finderTypes()) {
            ask(type, nothing);
        }
    }

    void askForEverything(const Inventory& inventory) {
        for (const FinderType& type : finderTypes()) {
            for (const FinderEntry& question : type.questions(type, inventory)) {
                ask(type, question);
            }
        }
    }

    void ask(const FinderType& type, FinderEntry question) {
        m_progress.step(++m_asked, 0, question.folderName.isEmpty() ? question.subject : question.folderName);
        question.executables = QStringList{probeName()};
        GameLocation location;
        if (const std::unique_ptr<IGameFinder> finder = type.make(m_factory, question)) {
            finder->find(location);
        }
    }

    void takeEvents() {
        TraceEvents taken = m_trace.take();
        std::move(taken.begin(), taken.end(), std::back_inserter(m_survey.events));
    }

    IGameFinderFactory& m_factory;
    PluginTrace& m_trace;
    Survey& m_survey;
    Progress m_progress{QStringLiteral("asking")};
    int m_asked = 0;
};

} // namespace

Survey surveyPc(const QString& pluginFile, const Catalogue& games, QString& fault, const MoreQuestions& askMore) {
    Survey survey;
    PluginTrace trace;
    withPlugin(pluginFile, fault, [&](IGameFinderFactory& factory) {
        Surveyor(factory, trace, survey).askForAll(games);
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
