#include "stores/EpicStoreFinder.h"

#include "stores/EpicManifestIndex.h"

#include "common/EpicLauncher.h"
#include "common/FindersAtOnce.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int equals = 0;
constexpr int contains = 1;

class EpicStoreFinderTest : public FinderTest {
protected:
    Answer find(const QString& name, const QStringList& executables, int matchMode) {
        return ask(Finders::EpicStoreFinder(&logger, &index, name, executables, matchMode));
    }

    EpicManifestIndex index;
};

TEST_F(EpicStoreFinderTest, FindsEveryExecutableAndStartsTheGameThroughTheLauncher) {
    pc.file("D:\\Epic\\Kiwi\\Bin\\Kiwi.exe");
    pc.file("D:\\Epic\\Kiwi\\Server.exe");
    addEpicApp(pc, "1.item", {"KiwiApp", "Kiwi Racer", "D:\\Epic\\Kiwi", "0a1b", "c2d3"});
    EXPECT_EQ(find("kiwi racer", {"Bin\\Kiwi.exe", "gone.exe", "Server.exe"}, equals),
              startedBy("com.epicgames.launcher://apps/0a1b%3Ac2d3%3AKiwiApp?action=launch&silent=true",
                        "D:\\Epic\\Kiwi", {"D:\\Epic\\Kiwi\\Bin\\Kiwi.exe", "D:\\Epic\\Kiwi\\Server.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: EpicStore: Found D:\\Epic\\Kiwi: D:\\Epic\\Kiwi\\Bin\\Kiwi.exe",
                                                 "A: EpicStore: Found D:\\Epic\\Kiwi: D:\\Epic\\Kiwi\\Server.exe"));
}

TEST_F(EpicStoreFinderTest, AnEmptyNameIsNotSearched) {
    addEpicApp(pc, "1.item", {"Kiwi", "", "D:\\Kiwi"});
    pc.file("D:\\Kiwi\\a.exe");
    EXPECT_EQ(find("", {"a.exe"}, equals), leftAlone());
    EXPECT_EQ(find("", {"a.exe"}, contains), leftAlone());
    EXPECT_EQ(pc.log("Quorvan.Finders.EpicStore"), "") << "the index is not built";
}

TEST_F(EpicStoreFinderTest, LeavesTheLocationAloneWhenNoAppHasTheName) {
    EXPECT_EQ(find("Kiwi", {"a.exe"}, equals), leftAlone()) << "an empty index";
}

TEST_F(EpicStoreFinderTest, TheMatchModeSaysHowTheNameMustFit) {
    pc.file("D:\\W\\w.exe");
    addEpicApp(pc, "1.item", {"W", "Warhammer", "D:\\W"});
    EXPECT_EQ(find("war", {"w.exe"}, equals), leftAlone());
    EXPECT_EQ(find("war", {"w.exe"}, 2), leftAlone());
    EXPECT_TRUE(find("war", {"w.exe"}, contains));
    EXPECT_TRUE(find("WARHAMMER", {"w.exe"}, equals));
    EXPECT_TRUE(find("WARHAMMER", {"w.exe"}, 2));
    EXPECT_FALSE(find("Warhammer 2", {"w.exe"}, contains));
}

TEST_F(EpicStoreFinderTest, AnAppWithoutAPlaceLeavesTheLocationAlone) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", ""});
    EXPECT_EQ(find("Kiwi", {"a.exe"}, equals), leftAlone());
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(EpicStoreFinderTest, TheFirstAppWithAnExecutableWins) {
    pc.file("D:\\2\\a.exe");
    pc.file("D:\\3\\a.exe");
    addEpicApp(pc, "1.item", {"1", "Kiwi", "D:\\1"});
    addEpicApp(pc, "2.item", {"2", "KIWI", "D:\\2"});
    addEpicApp(pc, "3.item", {"3", "Kiwi", "D:\\3"});
    EXPECT_TRUE(find("Kiwi", {"a.exe"}, equals));
    EXPECT_EQ(location.launchCommand, "com.epicgames.launcher://apps/space%3Aitem%3A2?action=launch&silent=true");
    EXPECT_EQ(location.installFolder, "D:\\2");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\2\\a.exe"));
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("A: EpicStore: Not found D:\\1", "A: EpicStore: Found D:\\2: D:\\2\\a.exe"));
}

TEST_F(EpicStoreFinderTest, AFailedSearchKeepsTheLastPlace) {
    addEpicApp(pc, "1.item", {"1", "Kiwi", "D:\\1"});
    addEpicApp(pc, "2.item", {"2", "Kiwi", "D:/2\\"});
    addEpicApp(pc, "3.item", {"3", "Kiwi", ""});
    EXPECT_EQ(find("Kiwi", {"a.exe"}, equals), failedIn("D:/2\\"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: EpicStore: Not found D:\\1", "A: EpicStore: Not found D:/2\\"));
}

TEST_F(EpicStoreFinderTest, WithoutExecutablesNothingIsFound) {
    pc.file("D:\\1\\a.exe");
    addEpicApp(pc, "1.item", {"1", "Kiwi", "D:\\1"});
    addEpicApp(pc, "2.item", {"2", "Kiwi", "D:\\1"});
    EXPECT_FALSE(find("Kiwi", {}, equals));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: EpicStore: Not found D:\\1", "A: EpicStore: Not found D:\\1"));
}

TEST_F(EpicStoreFinderTest, TheUrlIsPutTogetherAsItStands) {
    pc.file("D:\\Kiwi\\a.exe");
    addEpicApp(pc, "1.item", {"", "Kiwi", "D:\\Kiwi", "a b&c", "%41/ü"});
    EXPECT_TRUE(find("Kiwi", {"a.exe"}, equals));
    EXPECT_EQ(location.launchCommand, "com.epicgames.launcher://apps/a b&c%3A%41/ü%3A?action=launch&silent=true");
}

TEST_F(EpicStoreFinderTest, OneSeparatorIsAlwaysAdded) {
    pc.file("D:\\Epic\\Kiwi\\a.exe");
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:/Epic/Kiwi/"});
    EXPECT_TRUE(find("Kiwi", {"a.exe"}, equals));
    EXPECT_EQ(location.executablePath, "D:/Epic/Kiwi/\\a.exe");
    EXPECT_EQ(location.installFolder, "D:/Epic/Kiwi/");
}

TEST_F(EpicStoreFinderTest, TheFactoryMakesItAndKeepsOneIndexForAll) {
    pc.file("D:\\Kiwi\\a.exe");
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi Racer", "D:\\Kiwi"});
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    findFolderAtOnce([&] { return factory->createEpicStoreFinder("kiwi", {"a.exe"}, equals); }, "");
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Kiwi"});
    EXPECT_FALSE(factory->createEpicStoreFinder("Plum", {"a.exe"}, equals)->find(location)) << "installed later";
    EXPECT_TRUE(factory->createEpicStoreFinder("kiwi", {"a.exe"}, contains)->find(location));
    EXPECT_EQ(location.launchCommand, "com.epicgames.launcher://apps/space%3Aitem%3AKiwi?action=launch&silent=true");
    EXPECT_EQ(location.executablePath, "D:\\Kiwi\\a.exe");
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: EpicStore: Found D:\\Kiwi: D:\\Kiwi\\a.exe"));
    EXPECT_EQ(pc.log("Quorvan.Finders.EpicStore").count("LOG CREATED"), 1);
}

TEST_F(EpicStoreFinderTest, AnEmptyExecutableStandsForTheFolderItself) {
    pc.folder("D:\\Epic\\Kiwi");
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Epic\\Kiwi"});
    EXPECT_TRUE(find("Kiwi", {""}, equals));
    EXPECT_EQ(location.executablePath, "D:\\Epic\\Kiwi\\");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\Epic\\Kiwi\\"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: EpicStore: Found D:\\Epic\\Kiwi: D:\\Epic\\Kiwi\\"));
}

} // namespace
