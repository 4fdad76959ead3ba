#include "common/AtOnce.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "core/Locations.h"
#include "faults/EveryFinder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

constexpr int games = 8;  ///< which are installed; one more is asked for
constexpr int kinds = 13; ///< of finders, and ways in which they compare names
constexpr int rounds = 3;

using Finders = std::vector<std::unique_ptr<IGameFinder>>;
using Answers = std::vector<FinderAnswer>;

class ThreadsTest : public ::testing::Test {
protected:
    ThreadsTest() { installForEveryFinder(pc, games); }

    Finders makeFinders(IGameFinderFactory& factory) const {
        Finders finders;
        for (int game = 0; game <= games; ++game) {
            Finders ofGame = makeEveryFinder(factory, game);
            std::move(ofGame.begin(), ofGame.end(), std::back_inserter(finders));
        }
        return finders;
    }

    /// What one thread alone is told.
    Answers expectedAnswers() const {
        const auto factory = plugin.create();
        Answers answers;
        for (const auto& finder : makeFinders(*factory)) {
            answers.push_back(ask(*finder));
        }
        return answers;
    }

    /// Sets a choice of the thread's own, sees it and takes it back.
    static void expectOwnChoice(IGameFinder& finder, std::size_t thread) {
        const QString folder = "D:\\Own\\" + QString::number(thread);
        finder.setUserLocation(folder);
        EXPECT_EQ(finder.userLocation(), folder);
        finder.setUserLocation("");
        EXPECT_EQ(finder.userLocation(), "");
    }

    /// Asks in an order that is the thread's own, so that each index is the first one for some, and chooses now and
    /// then.
    static void search(const Finders& finders, IGameFinder& choice, const Answers& expected, std::size_t thread) {
        for (std::size_t i = 0; i < finders.size(); ++i) {
            const std::size_t number = (thread * 7 + i) % finders.size();
            const FinderAnswer answer = ask(*finders[number]);
            EXPECT_EQ(answer, expected[number]) << number;
            if (i % kinds == 0) {
                expectOwnChoice(choice, thread);
            }
        }
    }

    TestPc pc;
    const PluginUnderTest plugin;
};

TEST_F(ThreadsTest, OneAloneFindsWhatIsInstalled) {
    const Answers answers = expectedAnswers();
    ASSERT_EQ(answers.size(), kinds * (games + 1));
    EXPECT_EQ(std::count_if(answers.begin(), answers.end(), [](const FinderAnswer& answer) { return answer.found; }),
              games * (kinds - 1))
        << "all but the app package";
    EXPECT_FALSE(std::any_of(answers.end() - kinds, answers.end(), [](const auto& answer) { return answer.found; }));
    EXPECT_THAT(askFactory(*plugin.create()),
                ElementsAre("D:/Oculus/Manifests", "", "C:\\Steam\\steam.exe", "C:/Steam/config", "C:\\Varjo", "", "",
                            "C:\\Steam\\steamapps\\common\\SteamVR"));
}

TEST_F(ThreadsTest, SixteenThatSearchAtOnceAreToldWhatOneIsTold) {
    const Answers expected = expectedAnswers();
    const std::vector<QString> expectedOfFactory = askFactory(*plugin.create());
    for (int round = 0; round < rounds; ++round) {
        const auto shared = plugin.create();
        std::array<Finders, 16> finders;
        std::array<std::unique_ptr<IGameFinder>, 16> choices;
        for (std::size_t thread = 0; thread < finders.size(); ++thread) {
            finders[thread] = makeFinders(*shared);
            choices[thread] = shared->createUserProvidedLocationFinder("Own" + QString::number(thread), {"x.exe"});
        }

        std::atomic<bool> isOver{false};
        std::thread maker([&] { // the only thread that calls the factory
            do {
                EXPECT_EQ(askFactory(*shared), expectedOfFactory);
                const Finders madeAndGone = makeFinders(*shared);
                EXPECT_EQ(ask(*madeAndGone.front()), expected.front());
            } while (!isOver);
        });
        std::array<std::thread, 2> others;
        for (std::thread& other : others) {
            other = std::thread([&] {
                do {
                    const auto own = plugin.create();
                    EXPECT_THAT(askEveryFinder(*own, 0), ElementsAreArray(expected.begin(), expected.begin() + kinds));
                } while (!isOver);
            });
        }

        std::atomic<std::size_t> next{0};
        callAtOnce([&] {
            const std::size_t thread = next++;
            search(finders[thread], *choices[thread], expected, thread);
            finders[thread].clear();
            choices[thread].reset();
        });
        isOver = true;
        maker.join();
        for (std::thread& other : others) {
            other.join();
        }
    }
}

} // namespace
