#include "stores/OculusLibraries.h"

#include "support/Files.h"
#include "support/Logger.h"

#include "common/OculusStore.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"
#include "recordings/RegValues.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString unmounted = "\\\\?\\Volume{99999999-aaaa-bbbb-cccc-dddddddddddd}\\";

/// The line about a rejected library.
QString rejected(const QString& registered, const QString& path, const QString& tests) {
    return "E: OculusStore: Failed to open. UNC: " + registered + ", path: " + path + ", " + tests;
}

class OculusLibrariesTest : public ::testing::Test {
protected:
    TestPc pc;
    Logger logger = Logger::create("Test");
};

TEST_F(OculusLibrariesTest, AVolumePathBecomesADrivePath) {
    makeOculusFolders(pc, "D:\\Oculus Apps");
    addOculusLibrary(pc, "{1}", pc.volume('D') + "Oculus Apps");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("D:/Oculus Apps/Manifests"));
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(OculusLibrariesTest, AVolumesNameFitsInAnyLetterCase) {
    makeOculusFolders(pc, "D:\\Oculus Apps");
    addOculusLibrary(pc, "{1}", pc.volume('D').toLower() + "Oculus Apps");
    addOculusLibrary(pc, "{2}", pc.volume('D').toUpper() + "oculus apps\\");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("D:/Oculus Apps/Manifests", "D:/oculus apps/Manifests"));
}

TEST_F(OculusLibrariesTest, ADrivePathStaysAsItIs) {
    makeOculusFolders(pc, "D:\\Oculus Apps");
    addOculusLibrary(pc, "{1}", "D:\\Oculus Apps");
    addOculusLibrary(pc, "{2}", "D:/Oculus Apps/");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("D:/Oculus Apps/Manifests", "D:/Oculus Apps/Manifests"));
}

TEST_F(OculusLibrariesTest, ALibraryMayBeADrivesRoot) {
    makeOculusFolders(pc, "E:");
    addOculusLibrary(pc, "{1}", pc.volume('E'));
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("E:/Manifests"));
}

TEST_F(OculusLibrariesTest, LibrariesKeepTheRegistrysOrder) {
    makeOculusFolders(pc, "C:\\1");
    makeOculusFolders(pc, "D:\\2");
    makeOculusFolders(pc, "E:\\3");
    addOculusLibrary(pc, "c", "C:\\1");
    addOculusLibrary(pc, "A", pc.volume('E') + "3");
    addOculusLibrary(pc, "b", "D:\\2");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("E:/3/Manifests", "D:/2/Manifests", "C:/1/Manifests"));
}

TEST_F(OculusLibrariesTest, WithoutTheKeyOrBelowItThereAreNone) {
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    pc.key({RootKey::CurrentUser, oculusKeyPath, View::view64});
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    EXPECT_THAT(pc.messages("Test"), IsEmpty());
}

TEST_F(OculusLibrariesTest, TheMachinesLibrariesAreNotAsked) {
    makeOculusFolders(pc, "D:\\Oculus Apps");
    pc.value({RootKey::LocalMachine, oculusKeyPath + "\\{1}", View::view64}, "Path", "D:\\Oculus Apps");
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
}

TEST_F(OculusLibrariesTest, ALibraryNeedsBothFolders) {
    pc.folder("D:\\1\\Manifests");
    pc.folder("D:\\2\\Software");
    pc.folder("D:\\3");
    for (const char* number : {"1", "2", "3", "4"}) {
        addOculusLibrary(pc, number, QString("D:\\") + number);
    }
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    EXPECT_THAT(pc.messages("Test"), ElementsAre(rejected("D:\\1", "D:\\1", "1, 0, 1"), //
                                                 rejected("D:\\2", "D:\\2", "1, 1, 0"), //
                                                 rejected("D:\\3", "D:\\3", "1, 0, 0"), //
                                                 rejected("D:\\4", "D:\\4", "0, 0, 0")));
}

TEST_F(OculusLibrariesTest, ARejectedLibraryIsToldAsRegisteredAndAsConverted) {
    makeOculusFolders(pc, "C:\\Good");
    pc.folder("D:\\Oculus %s 競走\\Manifests");
    const QString registered = pc.volume('D').toLower() + "Oculus %s 競走";
    addOculusLibrary(pc, "{1}", registered);
    addOculusLibrary(pc, "{2}", "C:\\Good");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("C:/Good/Manifests"));
    EXPECT_THAT(pc.messages("Test"), ElementsAre(rejected(registered, "D:\\Oculus %s 競走", "1, 0, 1")));
}

TEST_F(OculusLibrariesTest, AVolumeThatIsNotMountedStaysAsItIs) {
    addOculusLibrary(pc, "{1}", unmounted + "Oculus Apps");
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    EXPECT_THAT(pc.messages("Test"),
                ElementsAre(rejected(unmounted + "Oculus Apps", unmounted + "Oculus Apps", "0, 0, 0")));
}

TEST_F(OculusLibrariesTest, AVolumesNameCountsOnlyAtTheBeginningAndWhole) {
    makeOculusFolders(pc, "D:\\Apps");
    QString cut = pc.volume('D');
    cut.chop(1);
    addOculusLibrary(pc, "{1}", ' ' + pc.volume('D') + "Apps");
    addOculusLibrary(pc, "{2}", cut);
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    EXPECT_THAT(pc.messages("Test").size(), 2);
    EXPECT_TRUE(pc.messages("Test").at(0).contains("path:  " + pc.volume('D') + "Apps, "));
    EXPECT_TRUE(pc.messages("Test").at(1).contains("path: " + cut + ", "));
}

TEST_F(OculusLibrariesTest, ALibraryWithoutAPathIsTheCurrentFolder) {
    pc.key({RootKey::CurrentUser, oculusKeyPath + "\\{1}", View::view64});
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    // Which on a recorded PC is not there.
    const QString tests = Files::folderExists(".") ? "1, 0, 0" : "0, 0, 0";
    EXPECT_THAT(pc.messages("Test"), ElementsAre(rejected("", "", tests)));
}

TEST_F(OculusLibrariesTest, AFileNamedManifestsLeavesTheLibraryItself) {
    pc.folder("D:\\Apps\\Software");
    pc.file("D:\\Apps\\Manifests");
    addOculusLibrary(pc, "{1}", "D:\\Apps");
    EXPECT_THAT(oculusLibraryFolders(logger), ElementsAre("D:/Apps"));
}

TEST_F(OculusLibrariesTest, RejectedLibrariesAreToldFromLevelOneOn) {
    addOculusLibrary(pc, "{1}", "D:\\Gone");
    for (const quint32 level : {0U, 1U}) {
        const QString name = "Test.Level" + QString::number(level);
        pc.number({RootKey::CurrentUser, "Software\\Veltrane\\" + name, View::view32}, "LogLevel", level);
        Logger leveled = Logger::create(name.toLatin1());
        EXPECT_THAT(oculusLibraryFolders(leveled), IsEmpty());
        EXPECT_EQ(pc.messages(name).size(), static_cast<int>(level));
    }
}

TEST_F(OculusLibrariesTest, TheFactoryLooksAnewAtEachQuestion) {
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    EXPECT_THAT(factory->oculusLibraryFolders(), IsEmpty());
    pc.folder("D:\\Apps\\Software");
    addOculusLibrary(pc, "{1}", "D:\\Apps");
    EXPECT_THAT(factory->oculusLibraryFolders(), IsEmpty());
    pc.folder("D:\\Apps\\Manifests");
    EXPECT_THAT(factory->oculusLibraryFolders(), ElementsAre("D:/Apps/Manifests"));
    EXPECT_THAT(pc.messages("Quorvan.Finders"), ElementsAre(rejected("D:\\Apps", "D:\\Apps", "1, 1, 0")));
    EXPECT_EQ(pc.log("Quorvan.Finders.OculusStore"), "");
}

TEST_F(OculusLibrariesTest, APathOfAnotherTypeIsTakenAsItReads) {
    const QString path = "D:\\Apps";
    makeOculusFolders(pc, path);
    pc.number({RootKey::CurrentUser, oculusKeyPath + "\\1", View::view64}, "Path", 42);
    pc.value({RootKey::CurrentUser, oculusKeyPath + "\\2", View::view64}, "Path", 2, Recordings::storedText(path));
    EXPECT_THAT(oculusLibraryFolders(logger), IsEmpty());
    EXPECT_THAT(pc.messages("Test"), ElementsAre(rejected("42", "42", "0, 0, 0"), rejected("?", "?", "0, 0, 0")));
}

} // namespace
