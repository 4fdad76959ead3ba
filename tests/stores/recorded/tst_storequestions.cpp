#include "core/GameLocation.h"
#include "stores/EpicManifestIndex.h"
#include "stores/EpicStoreFinder.h"
#include "stores/OculusLibraryIndex.h"

#include "common/EpicLauncher.h"
#include "common/OculusStore.h"
#include "common/QtPrinters.h"
#include "common/recorded/QuestionsTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;

using StoreQuestionsTest = QuestionsTest;

TEST_F(StoreQuestionsTest, AnEpicSearchLooksOnlyForExecutables) {
    pc.file("D:\\Kiwi\\a.exe");
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    EpicManifestIndex index;
    index.entries();
    GameLocation location;
    Finders::EpicStoreFinder finder(&logger, &index, "Kiwi", {"a.exe"}, 0);
    const auto questions = questionsOf([&] { EXPECT_TRUE(finder.find(location)); });
    EXPECT_THAT(questions, Contains("stat D:/Kiwi/a.exe"));
    EXPECT_THAT(questions, Not(Contains(StartsWith("open "))));
    EXPECT_THAT(questions, Not(Contains(StartsWith("stat D:/Plum"))));
}

TEST_F(StoreQuestionsTest, OculusManifestsAreNeverOpenedAndListedOnce) {
    makeOculusFolders(pc, "D:\\Apps");
    addOculusLibrary(pc, "{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Manifests\\kite.json.mini");
    OculusLibraryIndex index;
    const auto questions = questionsOf([&] { index.entries(); });
    EXPECT_THAT(questions, Contains("list D:/Apps/Manifests").Times(1));
    EXPECT_THAT(questions, Not(Contains(StartsWith("open "))));
}

TEST_F(StoreQuestionsTest, AManifestThatCanNotBeOpenedIsSkippedByName) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    Recorded::setObserver([this](const QString& question) {
        if (question == "open C:/Epic/Manifests/1.item") { // it goes between the listing and its opening
            pc.removeFile(manifestFolder + "\\1.item");
        }
    });
    EpicManifestIndex index;
    EXPECT_EQ(index.entries().size(), 1U);
    EXPECT_THAT(pc.messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: " + manifestFolder, "W:   Skipped invalid manifest: 1.item",
                            "A:   App: Plum | Plum"));
}

} // namespace
