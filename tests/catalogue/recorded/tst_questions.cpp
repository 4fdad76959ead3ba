#include "catalogue/StartMenuFinder.h"
#include "catalogue/StartMenuIndex.h"
#include "core/GameLocation.h"

#include "common/QtPrinters.h"
#include "common/recorded/QuestionsTest.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;

using CatalogueQuestionsTest = QuestionsTest;

TEST_F(CatalogueQuestionsTest, BuildingTheStartMenuIndexOnlyListsFolders) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.file("C:\\Menu\\a.lnk");
    pc.file("C:\\Menu\\Games\\b.lnk");
    StartMenuIndex index;
    EXPECT_THAT(questionsOf([&] { index.entries(); }), ElementsAre("list C:/Menu", "list C:/Menu/Games"));
}

TEST_F(CatalogueQuestionsTest, AStartMenuSearchOpensOnlyShortcutsOfTheName) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    for (const char* name : {"a", "b", "c"}) {
        pc.shortcut(QString("C:\\Menu\\") + name + ".lnk", "C:\\Games\\game.exe");
    }
    StartMenuIndex index;
    index.entries();
    GameLocation location;
    const auto questions = questionsOf(
        [&] { EXPECT_TRUE(Finders::StartMenuFinder(&logger, &index, "B", {"game.exe"}, 0).find(location)); });
    EXPECT_THAT(questions, Contains("stat C:/Menu/b.lnk"));
    EXPECT_THAT(questions, Not(Contains("stat C:/Menu/a.lnk")));
    EXPECT_THAT(questions, Not(Contains("stat C:/Menu/c.lnk")));
    EXPECT_THAT(questions, Not(Contains(StartsWith("list "))));
}

} // namespace
