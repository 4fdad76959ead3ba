#include "core/UserProvidedLocationFinder.h"

#include "core/MultiFinder.h"
#include "platform/Settings.h"

#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "core/FinderTest.h"
#include "core/ScriptedFinder.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString installFolder = "D:/Steam/steamapps/common/SteamVR";
const QString server = "bin\\win64\\vrserver.exe";

class UserProvidedLocationFinderTest : public FinderTest {
protected:
    ~UserProvidedLocationFinderTest() override {
        for (const QString& key : settings()->allKeys()) {
            settings()->remove(key);
        }
    }

    static std::unique_ptr<Platform::UserSettings> settings() { return Platform::openUserLocations(); }

    /// What is stored under a key; "(nothing)" where there is no value.
    static QString stored(const QString& key) { return settings()->value(key, "(nothing)"); }

    static void store(const QString& key, const QString& folder) { settings()->setValue(key, folder); }

    Finders::UserProvidedLocationFinder finder(const QString& key, const QStringList& executables) {
        return {&logger, key, executables};
    }

    /// What is stored after the user chose `path` for a game with these executables.
    QString chosen(const QString& path, const QStringList& executables) {
        finder("K", executables).setUserLocation(path);
        return stored("K");
    }
};

TEST_F(UserProvidedLocationFinderTest, FindsEveryExecutableInTheRememberedFolder) {
    pc.file("D:\\Games\\X\\bin\\b.exe");
    pc.file("D:\\Games\\X\\a.exe");
    store("K", "D:/Games/X");
    EXPECT_EQ(ask(finder("K", {"bin\\b.exe", "gone.exe", "a.exe"})),
              foundIn("D:/Games/X", {"D:/Games/X\\bin\\b.exe", "D:/Games/X\\a.exe"}));
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("A: User: Found D:/Games/X\\bin\\b.exe", "A: User: Found D:/Games/X\\a.exe"));
}

TEST_F(UserProvidedLocationFinderTest, WithoutARememberedFolderTheLocationIsResetSilently) {
    EXPECT_EQ(ask(finder("K", {"a.exe"})), failedIn(""));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(UserProvidedLocationFinderTest, AFolderWithoutTheExecutablesIsToldAsAnError) {
    pc.folder("D:\\Games\\X");
    store("K", " D:/Games/%s 競走\\ ");
    for (const QStringList& executables : {QStringList{"a.exe", "b.exe"}, QStringList{}}) {
        EXPECT_EQ(ask(finder("K", executables)), failedIn("D:/Games/%s 競走\\"));
    }
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre("E: User: Not found D:/Games/%s 競走\\", "E: User: Not found D:/Games/%s 競走\\"));
}

TEST_F(UserProvidedLocationFinderTest, AnEmptyKeySwitchesItOff) {
    pc.file("D:\\Games\\X\\a.exe");
    for (const char* key : {"", " \t"}) {
        auto off = finder(key, {"a.exe"});
        off.setUserLocation("D:\\Games\\X");
        EXPECT_EQ(off.userLocation(), "");
        EXPECT_FALSE(off.userLocation().isNull()) << "empty, as an empty text is";
        EXPECT_EQ(ask(off), failedIn(""));
    }
    EXPECT_THAT(settings()->allKeys(), IsEmpty()) << "nothing is written";
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(UserProvidedLocationFinderTest, BlanksAroundAKeyGo) {
    finder("  K\t", {}).setUserLocation("D:\\X");
    EXPECT_EQ(stored("K"), "D:\\X");
    EXPECT_EQ(finder(" K ", {}).userLocation(), "D:\\X");
    EXPECT_EQ(finder("k k", {}).userLocation(), "");
}

TEST_F(UserProvidedLocationFinderTest, BlanksAroundExecutablesGoAndEmptyNamesToo) {
    pc.file("D:\\X\\a.exe");
    store("K", "D:\\X");
    EXPECT_TRUE(finder("K", {"", " a.exe ", "  "}).find(location));
    EXPECT_THAT(location.executablePaths, ElementsAre("D:\\X\\a.exe"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre("A: User: Found D:\\X\\a.exe"));
}

TEST_F(UserProvidedLocationFinderTest, BlanksAroundTheRememberedFolderGo) {
    store("K", "\t D:\\My Games\\X ");
    EXPECT_EQ(finder("K", {}).userLocation(), "D:\\My Games\\X");
}

TEST_F(UserProvidedLocationFinderTest, TheInstallFolderIsRememberedAsGiven) {
    pc.file("D:\\Steam\\steamapps\\common\\SteamVR\\bin\\win64\\vrserver.exe");
    EXPECT_EQ(chosen(installFolder, {server}), installFolder);
    EXPECT_EQ(chosen("D:\\Steam\\steamapps\\common\\SteamVR\\", {server}), "D:\\Steam\\steamapps\\common\\SteamVR\\");
}

TEST_F(UserProvidedLocationFinderTest, TheFolderOfAnExecutableBelowStandsForTheInstallFolder) {
    pc.file("D:\\Steam\\steamapps\\common\\SteamVR\\bin\\win64\\vrserver.exe");
    for (const char* path :
         {"D:/Steam/steamapps/common/SteamVR/bin/win64", "D:\\Steam\\steamapps\\common\\SteamVR\\bin\\win64",
          "D:/Steam/steamapps/common/SteamVR/bin/win64/"}) {
        EXPECT_EQ(chosen(path, {server}), installFolder) << path;
    }
    EXPECT_EQ(chosen("D:/Steam/steamapps/common/SteamVR/bin/win64", {"bin/win64\\vrserver.exe"}), installFolder)
        << "either separator counts";
    EXPECT_EQ(chosen("D:/Steam/steamapps/common/SteamVR/other/folder", {server}), installFolder)
        << "whatever the folders on the way up are called";
}

TEST_F(UserProvidedLocationFinderTest, OnlyTheDepthOfTheExecutableIsGoneUp) {
    pc.file("D:\\X\\bin\\win64\\x.exe");
    EXPECT_EQ(chosen("D:/X/bin", {"bin\\win64\\x.exe"}), "D:/X/bin");
    EXPECT_EQ(chosen("D:/X/bin/win64/deep", {"bin\\win64\\x.exe"}), "D:/X/bin/win64/deep");
}

TEST_F(UserProvidedLocationFinderTest, TheFirstExecutableThatFitsDecides) {
    pc.file("D:\\X\\bin\\x.exe");
    pc.file("D:\\X\\bin\\y.exe");
    EXPECT_EQ(chosen("D:/X/bin", {"gone.exe", "bin\\x.exe", "y.exe"}), "D:/X");
    EXPECT_EQ(chosen("D:/X/bin", {"y.exe", "bin\\x.exe"}), "D:/X/bin");
}

TEST_F(UserProvidedLocationFinderTest, APathThatFitsNoExecutableIsRememberedAsGiven) {
    EXPECT_EQ(chosen("D:\\No such folder/ ", {"a.exe", "bin\\b.exe"}), "D:\\No such folder/ ");
    EXPECT_EQ(chosen("käfer 競走 %s", {}), "käfer 競走 %s");
    EXPECT_EQ(chosen("@Variant, \"quoted\" ; = [x]", {}), "@Variant, \"quoted\" ; = [x]");
}

TEST_F(UserProvidedLocationFinderTest, AnEmptyPathForgetsTheGame) {
    store("Other", "D:\\Other");
    auto both = finder("K", {"a.exe"});
    both.setUserLocation("D:\\X");
    EXPECT_EQ(both.userLocation(), "D:\\X");
    both.setUserLocation("");
    EXPECT_EQ(both.userLocation(), "");
    EXPECT_EQ(stored("K"), "(nothing)");
    EXPECT_EQ(stored("Other"), "D:\\Other");
    both.setUserLocation("");
    EXPECT_EQ(both.userLocation(), "") << "there is nothing to forget";
}

TEST_F(UserProvidedLocationFinderTest, NothingIsKeptInTheFinder) {
    auto early = finder("K", {"a.exe"});
    EXPECT_EQ(early.userLocation(), "");
    finder("K", {}).setUserLocation("D:\\X");
    EXPECT_EQ(early.userLocation(), "D:\\X") << "another finder's choice";
    pc.file("D:\\Y\\a.exe"); // a recorded PC that is changed is another one, without what was set in the first
    store("K", "D:\\Y");
    EXPECT_EQ(early.userLocation(), "D:\\Y") << "the host's choice";
    EXPECT_TRUE(early.find(location));
    pc.removeFile("D:\\Y\\a.exe");
    store("K", "D:\\Y");
    EXPECT_FALSE(early.find(location));
    EXPECT_EQ(location.installFolder, "D:\\Y");
}

TEST_F(UserProvidedLocationFinderTest, AMultiFinderStopsAtARememberedFolderThatFails) {
    const auto findInMulti = [this] {
        std::unique_ptr<IGameFinder> chosenFirst =
            std::make_unique<Finders::UserProvidedLocationFinder>(&logger, "K", QStringList{"a.exe"});
        QStringList notes;
        std::unique_ptr<IGameFinder> behind =
            std::make_unique<ScriptedFinder>("behind", ScriptedFinder::Script{true, "", "D:\\Behind"}, &notes);
        return ask(Finders::MultiFinder(std::move(chosenFirst), std::move(behind), nullptr, nullptr, nullptr, nullptr,
                                        nullptr, nullptr, nullptr, nullptr, nullptr));
    };
    EXPECT_TRUE(findInMulti()) << "with nothing remembered the next one is asked";
    EXPECT_EQ(location.installFolder, "D:\\Behind");
    store("K", "D:\\Chosen");
    EXPECT_EQ(findInMulti(), failedIn("D:\\Chosen"));
}

TEST_F(UserProvidedLocationFinderTest, TheFactoryMakesIt) {
    pc.file("D:\\X\\bin\\a.exe");
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    factory->createUserProvidedLocationFinder("K", {"bin\\a.exe"})->setUserLocation("D:\\X\\bin");
    const auto later = plugin.create()->createUserProvidedLocationFinder(" K", {"bin\\a.exe"});
    EXPECT_EQ(later->userLocation(), "D:/X");
    const auto finder = factory->createUserProvidedLocationFinder("K", {"bin\\a.exe"});
    EXPECT_TRUE(finder->find(location));
    EXPECT_EQ(location.launchCommand, "D:/X\\bin\\a.exe");
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre("A: User: Found D:/X\\bin\\a.exe"));
}

} // namespace
