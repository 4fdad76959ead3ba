#include "stores/EpicManifestIndex.h"

#include "common/EpicLauncher.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Folders.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders.EpicStore";

// A function, as the folder may be initialised after this file's own constants.
QString folderLine() {
    return "A: MetaDir Folder: " + manifestFolder;
}

class EpicManifestIndexTest : public ::testing::Test {
protected:
    QStringList appNames() {
        QStringList names;
        for (const EpicAppEntry& entry : index.entries()) {
            names.append(entry.AppName);
        }
        return names;
    }

    TestPc pc;
    EpicManifestIndex index;
};

TEST_F(EpicManifestIndexTest, ListsTheAppsOfTheRegisteredFolder) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi, the Game", "D:\\Epic\\Kiwi", "ns", "id"});
    addEpicApp(pc, "2.item", {"Plum", "Käfer 競走 %s", "D:\\Epic\\Plum"});
    EXPECT_THAT(appNames(), ElementsAre("Kiwi", "Plum"));
    const EpicAppEntry& first = index.entries().front();
    EXPECT_EQ(first.DisplayName, "Kiwi, the Game");
    EXPECT_EQ(first.InstallLocation, "D:\\Epic\\Kiwi");
    EXPECT_EQ(first.CatalogNamespace, "ns");
    EXPECT_EQ(first.CatalogItemId, "id");
    EXPECT_EQ(first.LaunchExecutable, "game.exe");
    EXPECT_EQ(first.LaunchCommand, "-epic");
    EXPECT_THAT(pc.messages(logName),
                ElementsAre(folderLine(), "A:   App: Kiwi | Kiwi, the Game", "A:   App: Plum | Käfer 競走 %s"));
}

TEST_F(EpicManifestIndexTest, TheRegisteredFolderIsUsedAsItStands) {
    pc.value(epicKey, "ModSdkMetadataDir", "D:/Launcher\\Data\\");
    pc.file("D:\\Launcher\\Data\\1.item", manifestOf({"Kiwi", "Kiwi", "D:\\Kiwi"}));
    pc.file("D:\\Launcher\\Data\\Epic\\EpicGamesLauncher\\Data\\Manifests\\2.item",
            manifestOf({"Plum", "Plum", "D:\\Plum"}));
    EXPECT_THAT(appNames(), ElementsAre("Kiwi"));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: MetaDir Folder: D:/Launcher\\Data\\", "A:   App: Kiwi | Kiwi"));
}

TEST_F(EpicManifestIndexTest, WithoutARegisteredFolderItIsBelowTheCommonData) {
    pc.shellFolder(Platform::csidlCommonAppData, "D:\\Common");
    pc.folder("D:\\Common");
    pc.file("D:\\Common\\Epic\\EpicGamesLauncher\\Data\\Manifests\\1.item", manifestOf({"Kiwi", "Kiwi", "D:\\Kiwi"}));
    EXPECT_THAT(appNames(), ElementsAre("Kiwi"));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: MetaDir Folder: D:\\Common/Epic/EpicGamesLauncher/Data/Manifests",
                                                  "A:   App: Kiwi | Kiwi"));
}

TEST_F(EpicManifestIndexTest, AnEmptyRegisteredFolderAndTheMachinesCountAsNone) {
    pc.shellFolder(Platform::csidlCommonAppData, "D:\\Common");
    pc.folder("D:\\Common");
    pc.value(epicKey, "ModSdkMetadataDir", "");
    for (const quint32 view : {View::view32, View::view64}) {
        pc.value({RootKey::LocalMachine, epicKey.path, view}, "ModSdkMetadataDir", "D:\\Wrong");
    }
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: MetaDir Folder: D:\\Common/Epic/EpicGamesLauncher/Data/Manifests", "A: No apps"));
}

TEST_F(EpicManifestIndexTest, ARegisteredFolderToExpandReadsAsTheRegistryStringDoes) {
    pc.value(epicKey, "ModSdkMetadataDir", 2, QByteArray("%\0S\0%\0\0\0", 8));
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: MetaDir Folder: ?", "A: No apps"));
}

TEST_F(EpicManifestIndexTest, AMissingFolderIsAnEmptyIndex) {
    pc.value(epicKey, "ModSdkMetadataDir", "C:\\No such folder");
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: MetaDir Folder: C:\\No such folder", "A: No apps"));
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(EpicManifestIndexTest, DamagedManifestsCostOnlyThemselves) {
    addManifest(pc, "1.item", manifestOf({"Kiwi", "Kiwi", "D:\\Kiwi"}));
    addManifest(pc, "2 array.item", "[{\"AppName\": \"Plum\"}]");
    addManifest(pc, "3 cut.item", "{\"AppName\": \"Plum\"");
    addManifest(pc, "4 deep.item", QByteArray(100'000, '['));
    addManifest(pc, "5 empty.item", {});
    addManifest(pc, "6 käfer 競走 %s.item", "no JSON");
    addManifest(pc, "7 zeros.item", QByteArray(4096, '\0'));
    addManifest(pc, "8.item", "\xEF\xBB\xBF" + manifestOf({"Quince", "Quince", "D:\\Quince"}));
    EXPECT_THAT(appNames(), ElementsAre("Kiwi", "Quince"));
    EXPECT_THAT(pc.messages(logName),
                ElementsAre(folderLine(), "A:   App: Kiwi | Kiwi", "W:   Skipped invalid manifest: 2 array.item",
                            "W:   Skipped invalid manifest: 3 cut.item", "W:   Skipped invalid manifest: 4 deep.item",
                            "W:   Skipped invalid manifest: 5 empty.item",
                            "W:   Skipped invalid manifest: 6 käfer 競走 %s.item",
                            "W:   Skipped invalid manifest: 7 zeros.item", "A:   App: Quince | Quince"));
}

TEST_F(EpicManifestIndexTest, SkippedManifestsAreNotToldAtLevelOne) {
    pc.number({RootKey::CurrentUser, "Software\\Veltrane\\" + logName, View::view32}, "LogLevel", 1);
    addManifest(pc, "1.item", "[]");
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A: No apps"));
}

TEST_F(EpicManifestIndexTest, AManifestThatNamesNeitherAppNorPlaceIsDroppedSilently) {
    addManifest(pc, "1.item", "{\"DisplayName\": \"Kiwi\", \"AppName\": \"\", \"InstallLocation\": 7}");
    addManifest(pc, "2.item", "{}");
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A: No apps")) << "it does not count as an app";
}

TEST_F(EpicManifestIndexTest, AnAppNameOrAPlaceIsEnough) {
    addManifest(pc, "1.item", "{\"AppName\": \"Kiwi\"}");
    addManifest(pc, "2.item", "{\"InstallLocation\": \"D:\\\\Plum\", \"DisplayName\": \"Plum\"}");
    EXPECT_THAT(appNames(), ElementsAre("Kiwi", ""));
    EXPECT_EQ(index.entries().back().InstallLocation, "D:\\Plum");
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A:   App: Kiwi | ", "A:   App:  | Plum"));
}

TEST_F(EpicManifestIndexTest, OnlyFilesNamedItemAreManifests) {
    addEpicApp(pc, "a.ITEM", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    for (const char* name : {"b.item.bak", "c.json", "item", "d.items"}) {
        addEpicApp(pc, name, {"Plum", "Plum", "D:\\Plum"});
    }
    pc.folder(manifestFolder + "\\e.item");
    pc.folder(manifestFolder + "\\0.item\\x");
    pc.file(manifestFolder + "\\Pending\\f.item", manifestOf({"Plum", "Plum", "D:\\Plum"}));
    EXPECT_THAT(appNames(), ElementsAre("Kiwi"));
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A:   App: Kiwi | Kiwi"));
}

TEST_F(EpicManifestIndexTest, FindsEntriesByDisplayName) {
    addEpicApp(pc, "1.item", {"1", "Warhammer", "D:\\1"});
    addEpicApp(pc, "2.item", {"2", "Star Wars", "D:\\2"});
    addEpicApp(pc, "3.item", {"3", "WARHAMMER", "D:\\3"});
    const auto found = [this](const QString& name, int matchMode) {
        QStringList names;
        for (const EpicAppEntry& entry : index.findByName(name, matchMode)) {
            names.append(entry.AppName);
        }
        return names;
    };
    EXPECT_THAT(found("war", 1), ElementsAre("1", "2", "3"));
    EXPECT_THAT(found("war", 0), IsEmpty());
    EXPECT_THAT(found("WarHammer", 0), ElementsAre("1", "3"));
    EXPECT_THAT(found("WarHammer", -1), ElementsAre("1", "3"));
}

TEST_F(EpicManifestIndexTest, TheRegisteredFolderIsNotTrimmed) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    pc.value(epicKey, "ModSdkMetadataDir", ' ' + manifestFolder);
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: MetaDir Folder:  " + manifestFolder, "A: No apps"));
}

TEST_F(EpicManifestIndexTest, HiddenManifestsAreNotListed) {
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    pc.hide(manifestFolder + "\\1.item");
    EXPECT_THAT(appNames(), ElementsAre("Plum"));
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A:   App: Plum | Plum"));
}

TEST_F(EpicManifestIndexTest, ManifestsKeepTheFileSystemsOrder) {
    for (const char* name : {"_", "B", "a", "C"}) {
        addEpicApp(pc, QString(name) + ".item", {name, name, "D:\\X"});
    }
    EXPECT_THAT(appNames(), ElementsAre("a", "B", "C", "_")) << "neither by code nor by small letters";
}

TEST_F(EpicManifestIndexTest, AManifestLargerThanAnyRealOneIsSkipped) {
    constexpr int largest = 16 * 1024 * 1024;
    const auto padded = [](const QString& name, int size) {
        return manifestOf({name, name, "D:\\X"}).leftJustified(size, ' ');
    };
    addManifest(pc, "1.item", padded("Kiwi", largest));
    addManifest(pc, "2.item", padded("Plum", largest + 1));
    addManifest(pc, "3.item", manifestOf({"Quince", "Quince", "D:\\Quince"}));
    pc.enlarge(manifestFolder + "\\3.item", qint64{1024} * 1024 * 1024);
    EXPECT_THAT(appNames(), ElementsAre("Kiwi"));
    EXPECT_THAT(pc.messages(logName),
                ElementsAre(folderLine(), "A:   App: Kiwi | Kiwi", "W:   Skipped invalid manifest: 2.item",
                            "W:   Skipped invalid manifest: 3.item"));
    const qint64 peak = TestPc::peakMemory();
    EXPECT_GT(peak, largest);
    EXPECT_LT(peak, qint64{1024} * 1024 * 1024) << "less than the third has";
}

TEST_F(EpicManifestIndexTest, AFileInPlaceOfTheFolderHasNoManifests) {
    pc.value(epicKey, "ModSdkMetadataDir", manifestFolder);
    pc.file(manifestFolder);
    EXPECT_THAT(appNames(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre(folderLine(), "A: No apps"));
}

} // namespace
