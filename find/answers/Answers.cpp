#include "find/answers/Answers.h"

#include "core/IGameFinderFactory.h"
#include "find/catalogue/FinderTypes.h"
#include "find/terminal/Progress.h"

#include <algorithm>

namespace Find {

namespace {

struct Question {
    const char* title;
    const char* key;
    QString (IGameFinderFactory::*ask)(); ///< null for the one question with several answers
};

constexpr Question questions[] = {
    {"Steam client", "steamExecutablePath", &IGameFinderFactory::steamExecutablePath},
    {"Steam configuration", "steamConfigFolder", &IGameFinderFactory::steamConfigFolder},
    {"SteamVR", "steamVrFolder", &IGameFinderFactory::steamVrFolder},
    {"Oculus runtime", "oculusRuntimeFolder", &IGameFinderFactory::oculusRuntimeFolder},
    {"Oculus libraries", "oculusLibraryFolders", nullptr},
    {"Varjo", "varjoRuntimeFolder", &IGameFinderFactory::varjoRuntimeFolder},
    {"OpenXR", "openXrActiveRuntime", &IGameFinderFactory::openXrActiveRuntime},
    {"Lumavex standalone", "lumavexStandaloneLocation", &IGameFinderFactory::lumavexStandaloneLocation},
};

RuntimeAnswer askForRuntime(IGameFinderFactory& factory, const Question& question) {
    RuntimeAnswer answer;
    answer.title = QLatin1String(question.title);
    answer.key = QLatin1String(question.key);
    answer.isList = question.ask == nullptr;
    if (answer.isList) {
        answer.values = factory.oculusLibraryFolders();
        return answer;
    }
    const QString value = (factory.*question.ask)();
    if (!value.isEmpty()) {
        answer.values.append(value);
    }
    return answer;
}

} // namespace

bool Answers::allGamesFound() const {
    return std::all_of(games.begin(), games.end(), [](const GameAnswer& game) { return game.found; });
}

GameAnswer askForGame(IGameFinderFactory& factory, const Game& game) {
    GameAnswer answer;
    answer.name = game.name;
    const std::unique_ptr<IGameFinder> finder = makeMultiFinder(factory, game.finders);
    answer.found = finder && finder->find(answer.location);
    if (!answer.found) {
        answer.location = GameLocation(); // a search in vain may leave anything there
    }
    return answer;
}

std::vector<RuntimeAnswer> askForRuntimes(IGameFinderFactory& factory) {
    std::vector<RuntimeAnswer> answers;
    for (const Question& question : questions) {
        answers.push_back(askForRuntime(factory, question));
    }
    return answers;
}

void askForGames(IGameFinderFactory& factory, const Catalogue& games, Progress& progress,
                 const std::function<void(GameAnswer&)>& take) {
    int number = 0;
    for (const Game& game : games) {
        progress.step(++number, static_cast<int>(games.size()), game.name);
        GameAnswer answer = askForGame(factory, game);
        take(answer);
    }
}

Answers ask(IGameFinderFactory& factory, const Catalogue& games, Progress& progress) {
    Answers answers;
    askForGames(factory, games, progress, [&answers](GameAnswer& answer) { answers.games.push_back(answer); });
    answers.runtimes = askForRuntimes(factory);
    return answers;
}

} // namespace Find
