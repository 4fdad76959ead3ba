#include "runtimes/RuntimeLocators.h"

#include "support/RegistryKey.h"

#include "common/PcTest.h"
#include "common/PluginUnderTest.h"
#include "common/QtPrinters.h"
#include "platform/Registry.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::IsEmpty;

const TestKey varjo{RootKey::LocalMachine, "Software\\Varjo\\Runtime", View::view64};
const TestKey openXr{RootKey::LocalMachine, "Software\\Khronos\\OpenXR\\1", View::view64};
const QString manifest = "C:\\Windows\\system32\\steamxr_win64.json";
const QString oculusLibrary = "C:\\Oculus\\Support\\oculus-runtime\\LibOVRRT64_1.dll";

/// The key of the Lumavex software with this character between the blanks of its name.
TestKey lumavex(char16_t dash, RootKey root = RootKey::CurrentUser) {
    return {root, QString("Software\\Lumavex ") + QChar(dash) + " Standalone", View::view64};
}

constexpr char16_t controlCharacter = 0x0096;

class RuntimeLocatorsTest : public PcTest {
protected:
    void installAll() {
        pc.value(varjo, "InstallDir", "C:\\Program Files\\Varjo");
        pc.value(openXr, "ActiveRuntime", manifest);
        pc.value(lumavex(controlCharacter), "", "D:\\Lumavex");
        pc.environment("OculusBase", "C:\\Oculus");
        pc.file(oculusLibrary);
    }

    /// Varjo's, OpenXR's, Lumavex's and Oculus'.
    static QStringList told() {
        return {Runtimes::varjoRuntimeFolder(), Runtimes::openXrActiveRuntime(), Runtimes::lumavexStandaloneLocation(),
                Runtimes::oculusRuntimeFolder()};
    }

    const QStringList all{"C:\\Program Files\\Varjo", manifest, "D:\\Lumavex", "C:\\Oculus/Support/oculus-runtime"};
    const QStringList none{"", "", "", ""};
};

TEST_F(RuntimeLocatorsTest, TellTheInstalledRuntimes) {
    EXPECT_EQ(told(), none);
    installAll();
    EXPECT_EQ(told(), all) << "though there is no such manifest";
}

TEST_F(RuntimeLocatorsTest, KeysWithoutTheirValuesTellNothing) {
    for (const TestKey& key : {varjo, openXr, lumavex(controlCharacter)}) {
        pc.value(key, "Other", "C:\\Other");
    }
    EXPECT_EQ(told(), none);
}

TEST_F(RuntimeLocatorsTest, BlanksAroundAValueGoAndATrailingSeparatorStays) {
    pc.value(varjo, "InstallDir", " \t C:\\Program Files\\Varjo\\ \r\n");
    pc.value(openXr, "ActiveRuntime", "  " + manifest + ' ');
    pc.value(lumavex(controlCharacter), "", "\tD:/Lumavex/ ");
    EXPECT_EQ(told(), (QStringList{"C:\\Program Files\\Varjo\\", manifest, "D:/Lumavex/", ""}));
}

TEST_F(RuntimeLocatorsTest, OnlyTheirOwnRootAndViewAreAsked) {
    for (const TestKey& key : {TestKey{RootKey::LocalMachine, varjo.path, View::view32},
                               TestKey{RootKey::CurrentUser, varjo.path, View::view64}}) {
        pc.value(key, "InstallDir", "C:\\Wrong");
    }
    for (const TestKey& key : {TestKey{RootKey::LocalMachine, openXr.path, View::view32},
                               TestKey{RootKey::CurrentUser, openXr.path, View::view64}}) {
        pc.value(key, "ActiveRuntime", "C:\\Wrong");
    }
    pc.value(lumavex(controlCharacter, RootKey::LocalMachine), "", "C:\\Wrong");
    EXPECT_EQ(told(), none);
}

TEST_F(RuntimeLocatorsTest, AValueThatIsNotTextReadsAsTheRegistryStringDoes) {
    pc.number(varjo, "InstallDir", 4294967295U);
    pc.value(openXr, "ActiveRuntime", 2, QByteArray("%\0S\0%\0\0\0", 8));
    EXPECT_EQ(Runtimes::varjoRuntimeFolder(), "4294967295");
    EXPECT_EQ(Runtimes::openXrActiveRuntime(), "?");
}

TEST_F(RuntimeLocatorsTest, ALongValueIsReadWhole) {
    const QString folder = "C:\\" + QString(300, 'v');
    pc.value(varjo, "InstallDir", folder);
    EXPECT_EQ(Runtimes::varjoRuntimeFolder(), folder);
}

TEST_F(RuntimeLocatorsTest, TheLumavexKeyIsNotTheOneWithADash) {
    constexpr char16_t enDash = 0x2013;
    pc.value(lumavex(enDash), "", "C:\\En dash");
    pc.value(lumavex('-'), "", "C:\\Hyphen");
    EXPECT_EQ(Runtimes::lumavexStandaloneLocation(), "");
    pc.value(lumavex(controlCharacter), "", "C:\\Control character");
    EXPECT_EQ(Runtimes::lumavexStandaloneLocation(), "C:\\Control character");
}

TEST_F(RuntimeLocatorsTest, TheOculusRuntimeNeedsItsLibrary) {
    pc.environment("OculusBase", "C:\\Oculus");
    pc.folder("C:\\Oculus\\Support\\oculus-runtime");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "");
    pc.file("C:\\Oculus\\Support\\oculus-runtime\\LibOVRRT32_1.dll");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "");
    pc.file(oculusLibrary);
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "C:\\Oculus/Support/oculus-runtime");
    pc.removeFile(oculusLibrary);
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "") << "every question looks anew";
}

TEST_F(RuntimeLocatorsTest, TheOculusBaseKeepsItsTrailingSeparator) {
    pc.file(oculusLibrary);
    pc.environment("OculusBase", "C:\\Oculus\\");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "C:\\Oculus\\/Support/oculus-runtime");
}

TEST_F(RuntimeLocatorsTest, TheOculusBaseIsFoundInAnyLetterCase) {
    pc.file(oculusLibrary);
    pc.environment("OCULUSBASE", "C:\\Oculus");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "C:\\Oculus/Support/oculus-runtime");
}

TEST_F(RuntimeLocatorsTest, WithoutTheOculusBaseNoLibraryIsLookedFor) {
    pc.file("C:\\Support\\oculus-runtime\\LibOVRRT64_1.dll"); // where an empty base leads to from drive C
    const QString current = QDir::currentPath();
    QDir::setCurrent("C:\\");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "");
    pc.environment("OculusBase", "");
    EXPECT_EQ(Runtimes::oculusRuntimeFolder(), "");
    QDir::setCurrent(current);
}

TEST_F(RuntimeLocatorsTest, TheFactoryForwardsTheQuestions) {
    installAll();
    const PluginUnderTest plugin;
    const auto factory = plugin.create();
    EXPECT_EQ((QStringList{factory->varjoRuntimeFolder(), factory->openXrActiveRuntime(),
                           factory->lumavexStandaloneLocation(), factory->oculusRuntimeFolder()}),
              all);
    EXPECT_THAT(pc.messages("Quorvan.Finders"), IsEmpty());
}

} // namespace
