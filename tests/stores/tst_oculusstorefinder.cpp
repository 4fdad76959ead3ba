#include "stores/OculusStoreFinder.h"

#include "stores/OculusLibraryIndex.h"

#include "common/FindersAtOnce.h"
#include "common/OculusStore.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OculusStoreFinderTest : public FinderTest {
protected:
    /// A library that names the app "kite".
    void addLibrary(const QString& key, const QString& folder) {
        makeOculusFolders(pc, folder);
        addOculusLibrary(pc, key, folder);
        pc.file(folder + "\\Manifests\\kite.json.mini");
    }

    Answer find(const QString& appId, const QStringList& executables, const QString& softwareFolder) {
        return ask(Finders::OculusStoreFinder(&logger, &index, appId, executables, softwareFolder));
    }

    OculusLibraryIndex index;
};

TEST_F(OculusStoreFinderTest, FindsEveryExecutableInTheGamesFolder) {
    addLibrary("{1}", "D:\\Oculus Apps");
    pc.file("D:\\Oculus Apps\\Software\\some-game\\Game.exe");
    pc.file("D:\\Oculus Apps\\Software\\some-game\\bin\\Server.exe");
    EXPECT_EQ(find("kite", {"Game.exe", "gone.exe", "bin\\Server.exe"}, "some-game"),
              foundIn("D:/Oculus Apps/Software/some-game", {"D:/Oculus Apps/Software/some-game\\Game.exe",
                                                            "D:/Oculus Apps/Software/some-game\\bin\\Server.exe"}));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: OculusStore: D:/Oculus Apps/Software/some-game\\Game.exe",
                                                 "A: OculusStore: D:/Oculus Apps/Software/some-game\\Game.exe"))
        << "the second hit tells the first one's path again";
}

TEST_F(OculusStoreFinderTest, FindsAGameInALibraryOnAVolumePath) {
    makeOculusFolders(pc, "E:\\Apps");
    addOculusLibrary(pc, "{1}", pc.volume('E').toUpper() + "Apps");
    pc.file("E:\\Apps\\Manifests\\kite.json.mini");
    pc.file("E:\\Apps\\Software\\kite\\k.exe");
    EXPECT_TRUE(find("kite", {"k.exe"}, "kite"));
    EXPECT_EQ(location.launchCommand, "E:/Apps/Software/kite\\k.exe");
}

TEST_F(OculusStoreFinderTest, AnEmptySoftwareFolderIsNotSearched) {
    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\k.exe");
    EXPECT_EQ(find("kite", {"k.exe"}, ""), leftAlone());
    EXPECT_EQ(pc.log("Quorvan.Finders.OculusStore"), "") << "the index is not built";
}

TEST_F(OculusStoreFinderTest, LeavesTheLocationAloneWhenNoLibraryHasTheApp) {
    EXPECT_EQ(find("kite", {"k.exe"}, "kite"), leftAlone()) << "no library";

    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\kite\\k.exe");
    OculusLibraryIndex built;
    for (const char* appId : {"other", "KITE", "kit", ""}) {
        EXPECT_EQ(ask(Finders::OculusStoreFinder(&logger, &built, appId, {"k.exe"}, "kite")), leftAlone()) << appId;
    }
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(OculusStoreFinderTest, AMissingGameFolderLeavesThePartOfTheWayThatExists) {
    addLibrary("{1}", "D:\\Apps");
    EXPECT_EQ(find("kite", {"k.exe"}, "kite"), failedIn("D:/Apps/Software"));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(OculusStoreFinderTest, AFileIsNoGameFolder) {
    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\kite");
    EXPECT_FALSE(find("kite", {"k.exe"}, "kite"));
    EXPECT_EQ(location.installFolder, "D:/Apps/Software");
}

TEST_F(OculusStoreFinderTest, AFileNamedSoftwareEndsTheWayInTheLibrary) {
    pc.folder("D:\\Apps\\Manifests");
    pc.file("D:\\Apps\\Software");
    addOculusLibrary(pc, "{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Manifests\\kite.json.mini");
    EXPECT_EQ(find("kite", {"k.exe"}, "kite"), failedIn("D:/Apps"));
}

TEST_F(OculusStoreFinderTest, ResetsTheLocationWhenNoExecutableExists) {
    addLibrary("{1}", "D:\\Apps");
    pc.folder("D:\\Apps\\Software\\kite");
    for (const QStringList& executables : {QStringList{"gone.exe"}, QStringList{"", ""}, QStringList{}}) {
        EXPECT_EQ(find("kite", executables, "kite"), failedIn("D:/Apps/Software/kite"));
    }
}

TEST_F(OculusStoreFinderTest, EmptyNamesArePassedOver) {
    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\kite\\k.exe");
    EXPECT_TRUE(find("kite", {"", "k.exe", ""}, "kite"));
    EXPECT_THAT(location.executablePaths, ElementsAre("D:/Apps/Software/kite\\k.exe"));
}

TEST_F(OculusStoreFinderTest, TheFirstLibraryWithAnExecutableWins) {
    addLibrary("{1}", "C:\\1");
    addLibrary("{2}", "D:\\2");
    addLibrary("{3}", "D:\\3");
    addLibrary("{4}", "D:\\4");
    pc.folder("D:\\2\\Software\\kite");
    pc.file("D:\\3\\Software\\kite\\k.exe");
    pc.file("D:\\4\\Software\\kite\\k.exe");
    EXPECT_TRUE(find("kite", {"k.exe"}, "kite"));
    EXPECT_EQ(location.installFolder, "D:/3/Software/kite");
    EXPECT_THAT(location.executablePaths, ElementsAre("D:/3/Software/kite\\k.exe"));
}

TEST_F(OculusStoreFinderTest, AFailedSearchKeepsTheLastFolder) {
    addLibrary("{1}", "C:\\1");
    addLibrary("{2}", "D:\\2");
    pc.folder("C:\\1\\Software\\kite");
    EXPECT_EQ(find("kite", {"k.exe"}, "kite"), failedIn("D:/2/Software"));
}

TEST_F(OculusStoreFinderTest, TheSoftwareFolderMayBeAPath) {
    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\studio\\kite\\k.exe");
    pc.file("D:\\Apps\\Extra\\k.exe");
    EXPECT_TRUE(find("kite", {"k.exe"}, "studio/kite"));
    EXPECT_EQ(location.installFolder, "D:/Apps/Software/studio/kite");
    EXPECT_TRUE(find("kite", {"k.exe"}, "..\\Extra"));
    EXPECT_EQ(location.installFolder, "D:/Apps/Extra");
}

TEST_F(OculusStoreFinderTest, TheFactoryMakesItAndKeepsOneIndexForAll) {
    addLibrary("{1}", "D:\\Apps");
    pc.file("D:\\Apps\\Software\\kite\\k.exe");
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    findFolderAtOnce([&] { return factory->createOculusStoreFinder("other", {"k.exe"}, "kite"); }, "");
    EXPECT_TRUE(factory->createOculusStoreFinder("kite", {"k.exe"}, "kite")->find(location));
    EXPECT_EQ(location.installFolder, "D:/Apps/Software/kite");
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: OculusStore: D:/Apps/Software/kite\\k.exe"));
    EXPECT_EQ(pc.log("Quorvan.Finders.OculusStore").count("LOG CREATED"), 1);
}

} // namespace
