#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/Locations.h"
#include "installers/DummyGame.h"
#include "installers/Installation.h"
#include "installers/Running.h"

#include <QDir>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

void PrintTo(const DummyGame& game, std::ostream* stream) {
    *stream << game.name.toStdString();
}

namespace {

constexpr int equalNames = 0;
constexpr int containedName = 1;

/// What a finder returned and made of a record that was used before.
struct Answer {
    bool found = false;
    GameLocation location = usedLocation();
};

bool operator==(const Answer& left, const Answer& right) {
    return left.found == right.found && left.location == right.location;
}

void PrintTo(const Answer& answer, std::ostream* stream) {
    *stream << (answer.found ? "found " : "not found ");
    PrintTo(answer.location, stream);
}

const Answer knowsNothing{};

Answer ask(IGameFinder& finder) {
    Answer answer;
    answer.found = finder.find(answer.location);
    return answer;
}

/// A game's own words: the path of the file that runs.
QString run(const GameLocation& location) {
    constexpr int playedStatus = 42;
    QProcess process;
    process.setWorkingDirectory(location.installFolder);
    process.setProgram(location.launchCommand);
    runToItsEnd(process);
    EXPECT_EQ(process.exitCode(), playedStatus);
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// A game that its own installer puts on this PC.
class InstalledGameTest : public ::testing::TestWithParam<DummyGame> {
protected:
    InstalledGameTest() {
        const auto factory = plugin.create();
        EXPECT_EQ(askRegistry(*factory), knowsNothing) << "before the installation";
        EXPECT_EQ(askStartMenu(*factory), knowsNothing) << "before the installation";
    }

    Answer askRegistry(IGameFinderFactory& factory, int matchMode = equalNames) const {
        const QStringList executables{"not there.exe", game.executable, DummyGame::editor()};
        return ask(*factory.createUninstallFinder(nameFor(matchMode), executables, matchMode));
    }

    Answer askStartMenu(IGameFinderFactory& factory, int matchMode = equalNames) const {
        const QStringList executables{"not there.exe", game.executable};
        return ask(*factory.createStartMenuFinder(nameFor(matchMode), executables, matchMode));
    }

    QString otherFolder() const { return "D:\\Größere Platte\\" + game.id; }

    const DummyGame& game = GetParam();
    const PluginUnderTest plugin;

private:
    QString nameFor(int matchMode) const { return matchMode == containedName ? game.name.mid(1).toUpper() : game.name; }
};

class LinkedGameTest : public InstalledGameTest {};

std::vector<DummyGame> linkedGames() {
    const std::vector<DummyGame> all = dummyGames();
    std::vector<DummyGame> linked;
    std::copy_if(all.begin(), all.end(), std::back_inserter(linked),
                 [](const DummyGame& game) { return !game.menus.isEmpty(); });
    return linked;
}

std::string nameOf(const ::testing::TestParamInfo<DummyGame>& info) {
    return info.param.id.toStdString();
}

TEST_P(InstalledGameTest, IsFoundInTheUninstallRegistry) {
    const Installation installation(game);
    const auto factory = plugin.create();
    const Answer expected{true, game.registeredIn(installation.folder())};
    const Answer answer = askRegistry(*factory);
    EXPECT_EQ(answer, expected);
    EXPECT_EQ(askRegistry(*factory, containedName), expected);
    EXPECT_EQ(run(answer.location), QDir::toNativeSeparators(installation.folder() + '/' + game.executable));
}

TEST_P(InstalledGameTest, IsGoneForANewFactoryWhenUninstalled) {
    Installation installation(game);
    const auto factory = plugin.create();
    EXPECT_EQ(askRegistry(*factory), (Answer{true, game.registeredIn(installation.folder())}));
    installation.uninstall();
    EXPECT_EQ(askRegistry(*factory), (Answer{false, game.missedIn(installation.folder())})) << "keeps its list";
    EXPECT_EQ(askRegistry(*plugin.create()), knowsNothing);
    EXPECT_EQ(askRegistry(*plugin.create(), containedName), knowsNothing);
}

TEST_P(InstalledGameTest, IsFoundWhereItIsInstalledAgain) {
    Installation(game).uninstall();
    const Installation installation(game, otherFolder());
    const Answer answer = askRegistry(*plugin.create());
    EXPECT_EQ(answer, (Answer{true, game.registeredIn(otherFolder())}));
    EXPECT_EQ(run(answer.location), otherFolder() + '\\' + game.executable);
}

INSTANTIATE_TEST_SUITE_P(Installers, InstalledGameTest, ::testing::ValuesIn(dummyGames()), nameOf);

TEST_P(LinkedGameTest, IsFoundByItsShortcut) {
    const Installation installation(game);
    EXPECT_TRUE(installation.hasShortcut());
    const auto factory = plugin.create();
    const Answer expected{true, game.linkedIn(installation.folder())};
    const Answer answer = askStartMenu(*factory);
    EXPECT_EQ(answer, expected);
    EXPECT_EQ(askStartMenu(*factory, containedName), expected);
    EXPECT_EQ(run(answer.location), QDir::toNativeSeparators(installation.folder() + '/' + game.executable));
}

TEST_P(LinkedGameTest, IsGoneForANewFactoryWhenUninstalled) {
    Installation installation(game);
    const auto factory = plugin.create();
    EXPECT_TRUE(askStartMenu(*factory).found);
    installation.uninstall();
    EXPECT_EQ(askStartMenu(*factory), (Answer{false, {}})) << "keeps its list";
    EXPECT_EQ(askStartMenu(*plugin.create()), knowsNothing);
    EXPECT_EQ(askStartMenu(*plugin.create(), containedName), knowsNothing);
}

TEST_P(LinkedGameTest, IsFoundWhereItIsInstalledAgain) {
    Installation(game).uninstall();
    const Installation installation(game, otherFolder());
    const Answer answer = askStartMenu(*plugin.create());
    EXPECT_EQ(answer, (Answer{true, game.linkedIn(otherFolder())}));
    EXPECT_EQ(run(answer.location), otherFolder() + '\\' + game.executable);
}

INSTANTIATE_TEST_SUITE_P(Installers, LinkedGameTest, ::testing::ValuesIn(linkedGames()), nameOf);

} // namespace
