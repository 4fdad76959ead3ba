#include "find/record/Questions.h"

#include "core/GameLocation.h"
#include "core/IGameFinderFactory.h"
#include "find/catalogue/FinderTypes.h"
#include "find/catalogue/InstalledEntries.h"
#include "find/catalogue/Inventory.h"
#include "find/pc/AnsweringPc.h"
#include "find/record/Probe.h"
#include "find/terminal/Progress.h"

#include <memory>

namespace Find {

namespace {

/// Asks one question after the other; none of them finds anything.
class Questioner {
public:
    Questioner(IGameFinderFactory& factory, Progress& progress)
        : m_factory(factory)
        , m_progress(progress) {}

    /// What no PC has. Whoever looks for it makes the list in which it looks.
    void askForNothing();

    void askForEverything(const Inventory& inventory);

private:
    void ask(const FinderType& type, FinderEntry question);

    IGameFinderFactory& m_factory;
    Progress& m_progress;
    int m_asked = 0;
};

void Questioner::ask(const FinderType& type, FinderEntry question) {
    m_progress.step(++m_asked, 0, question.folderName.isEmpty() ? question.subject : question.folderName);
    question.executables = QStringList{probeName()};
    GameLocation location;
    if (const std::unique_ptr<IGameFinder> finder = type.make(m_factory, question)) {
        finder->find(location);
    }
}

void Questioner::askForNothing() {
    FinderEntry nothing;
    nothing.subject = probeName();
    nothing.folderName = probeName();
    for (const FinderType& type : finderTypes()) {
        ask(type, nothing);
    }
}

void Questioner::askForEverything(const Inventory& inventory) {
    for (const FinderType& type : finderTypes()) {
        for (const FinderEntry& question : type.questions(type, inventory)) {
            ask(type, question);
        }
    }
}

std::vector<FinderEntry> findersOf(const Catalogue& games) {
    std::vector<FinderEntry> all;
    for (const Game& game : games) {
        forEachFinder(game.finders, [&all](const FinderEntry& finder) { all.push_back(finder); });
    }
    return all;
}

} // namespace

void askForTheRest(IGameFinderFactory& factory, const Catalogue& games, const ReadTrace& readTrace,
                   Progress& progress) {
    Questioner questioner(factory, progress);
    questioner.askForNothing();
    questioner.askForEverything(
        {findersOf(games), installedEntries(readTrace()), registeredPackageFamilies(), userChoiceKeys()});
}

} // namespace Find
