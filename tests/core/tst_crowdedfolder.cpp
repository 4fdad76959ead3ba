#include "catalogue/StartMenuIndex.h"
#include "steam/SteamLibraryIndex.h"
#include "stores/EpicManifestIndex.h"

#include "common/EpicLauncher.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

// All that lists a folder lists this one, as making it takes the time of the test.
TEST(CrowdedFolderTest, AHundredThousandFilesHideNeitherAManifestNorAShortcut) {
    TestPc pc;
    const QString folder = "C:\\Steam\\steamapps";
    pc.files(folder, 100'000);
    pc.file("C:\\Steam\\steam.exe");
    pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", View::view32}, "", "C:\\Steam\\steam.exe");
    pc.file(folder + "\\appmanifest_50.acf");
    pc.value(epicKey, "ModSdkMetadataDir", folder);
    pc.file(folder + "\\50.item", manifestOf({"Kiwi", "Kiwi", "D:\\Kiwi"}));
    pc.shellFolder(Platform::csidlStartMenu, folder);
    pc.shortcut(folder + "\\50.lnk", "C:\\Steam\\steam.exe");

    SteamLibraryIndex steam;
    EXPECT_EQ(steam.findByAppId("50").size(), 1U);
    EXPECT_EQ(steam.entries().size(), 1U);
    EpicManifestIndex epic;
    ASSERT_EQ(epic.entries().size(), 1U);
    EXPECT_EQ(epic.entries().front().AppName, "Kiwi");
    StartMenuIndex startMenu;
    EXPECT_THAT(startMenu.findByName("50", MatchMode::equals), ElementsAre(folder + "\\50.lnk"));
}

} // namespace
