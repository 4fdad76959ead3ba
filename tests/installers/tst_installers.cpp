#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
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
        EXPECT_EQ(askRegistry(*factory), leftAlone()) << "before the installation";
        EXPECT_EQ(askStartMenu(*factory), leftAlone()) << "before the installation";
    }

    Answer askRegistry(IGameFinderFactory& factory, int matchMode = equalNames) const {
        const QStringList executables{"not there.exe", game.executable, DummyGame::editor()};
        return answerOf(*factory.createUninstallFinder(nameFor(matchMode), executables, matchMode));
    }

    Answer askStartMenu(IGameFinderFactory& factory, int matchMode = equalNames) const {
        const QStringList executables{"not there.exe", game.executable};
        return answerOf(*factory.createStartMenuFinder(nameFor(matchMode), executables, matchMode));
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
    const Answer expected = game.registeredIn(installation.folder());
    const Answer answer = askRegistry(*factory);
    EXPECT_EQ(answer, expected);
    EXPECT_EQ(askRegistry(*factory, containedName), expected);
    EXPECT_EQ(run(answer.location), QDir::toNativeSeparators(installation.folder() + '/' + game.executable));
}

TEST_P(InstalledGameTest, IsGoneForANewFactoryWhenUninstalled) {
    Installation installation(game);
    const auto factory = plugin.create();
    EXPECT_EQ(askRegistry(*factory), game.registeredIn(installation.folder()));
    installation.uninstall();
    EXPECT_EQ(askRegistry(*factory), game.missedIn(installation.folder())) << "keeps its list";
    EXPECT_EQ(askRegistry(*plugin.create()), leftAlone());
    EXPECT_EQ(askRegistry(*plugin.create(), containedName), leftAlone());
}

TEST_P(InstalledGameTest, IsFoundWhereItIsInstalledAgain) {
    Installation(game).uninstall();
    const Installation installation(game, otherFolder());
    const Answer answer = askRegistry(*plugin.create());
    EXPECT_EQ(answer, game.registeredIn(otherFolder()));
    EXPECT_EQ(run(answer.location), otherFolder() + '\\' + game.executable);
}

INSTANTIATE_TEST_SUITE_P(Installers, InstalledGameTest, ::testing::ValuesIn(dummyGames()), nameOf);

TEST_P(LinkedGameTest, IsFoundByItsShortcut) {
    const Installation installation(game);
    EXPECT_TRUE(installation.hasShortcut());
    const auto factory = plugin.create();
    const Answer expected = game.linkedIn(installation.folder());
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
    EXPECT_EQ(askStartMenu(*factory), failedIn("")) << "keeps its list";
    EXPECT_EQ(askStartMenu(*plugin.create()), leftAlone());
    EXPECT_EQ(askStartMenu(*plugin.create(), containedName), leftAlone());
}

TEST_P(LinkedGameTest, IsFoundWhereItIsInstalledAgain) {
    Installation(game).uninstall();
    const Installation installation(game, otherFolder());
    const Answer answer = askStartMenu(*plugin.create());
    EXPECT_EQ(answer, game.linkedIn(otherFolder()));
    EXPECT_EQ(run(answer.location), otherFolder() + '\\' + game.executable);
}

INSTANTIATE_TEST_SUITE_P(Installers, LinkedGameTest, ::testing::ValuesIn(linkedGames()), nameOf);

} // namespace
