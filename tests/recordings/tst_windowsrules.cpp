#include "recordings/RegistryView.h"
#include "recordings/WindowsNames.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Recordings::RegistryView;

/// Where the machine's key lies that a program of the other view asks for.
QString machine32(const QString& path) {
    return Recordings::storedMachinePath(path.split('\\'), RegistryView::Bits32).join('\\');
}

QString machine64(const QString& path) {
    return Recordings::storedMachinePath(path.split('\\'), RegistryView::Bits64).join('\\');
}

TEST(StoredPath, The32BitViewOfTheMachinesSoftwareIsATreeOfItsOwn) {
    EXPECT_EQ(machine64("SOFTWARE\\X\\Y"), "SOFTWARE\\X\\Y");
    EXPECT_EQ(machine32("SOFTWARE\\X\\Y"), "SOFTWARE\\Wow6432Node\\X\\Y");
    EXPECT_EQ(machine32("software\\wow6432node\\X"), "software\\wow6432node\\X");
    EXPECT_EQ(machine64("software\\wow6432node\\X"), "software\\wow6432node\\X");
    EXPECT_EQ(machine32("System\\X"), "System\\X");
}

TEST(StoredPath, SharedKeysAreInOnePlace) {
    EXPECT_EQ(machine32("Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\x.exe"),
              "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\x.exe");
    EXPECT_EQ(machine32("Software\\Microsoft\\Windows\\CurrentVersion\\App Paths 2"),
              "Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\App Paths 2");
    EXPECT_EQ(machine32("Software\\Microsoft\\Windows\\CurrentVersion"),
              "Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion");
    EXPECT_EQ(machine32("Software\\policies\\X"), "Software\\policies\\X");
    EXPECT_EQ(machine32("Software\\PoliciesX"), "Software\\Wow6432Node\\PoliciesX");
    EXPECT_EQ(machine32("Software\\Classes\\steam"), "Software\\Classes\\steam");
    EXPECT_EQ(machine32("Software\\Classes\\CLSID\\{1}"), "Software\\Classes\\Wow6432Node\\CLSID\\{1}");
    EXPECT_EQ(machine64("SOFTWARE\\WOW6432NODE\\classes\\clsid\\{1}"), "SOFTWARE\\classes\\Wow6432Node\\clsid\\{1}");
}

TEST(StoredPath, TheUsersSoftwareHasOneView) {
    const QStringList path{"Software", "X"};
    EXPECT_EQ(Recordings::storedUserPath(path, RegistryView::Bits32), path);
    EXPECT_EQ(Recordings::storedClassesPath({"steam"}, RegistryView::Bits32), QStringList{"steam"});
}

TEST(FoldName, MakesEqualWhatWindowsCallsOneName) {
    EXPECT_EQ(Recordings::foldName("Käfer"), Recordings::foldName("KÄFER"));
    EXPECT_NE(Recordings::foldName("ss"), Recordings::foldName("ß"));
    EXPECT_NE(Recordings::foldName("i"), Recordings::foldName("ı"));
}

TEST(AppPackages, TheFamilyIsThePackagesNameAndItsPublisher) {
    EXPECT_EQ(Recordings::familyOfPackage("Maker.Game_1.2.3.0_x64__8wekyb3d8bbwe"), "Maker.Game_8wekyb3d8bbwe");
    EXPECT_EQ(Recordings::familyOfPackage("Maker.Game_1.2.3.0_neutral_split.scale-100_8wekyb3d8bbwe"),
              "Maker.Game_8wekyb3d8bbwe");
    for (const char* const name : {"", "Maker.Game", "a_b_c_d", "_1_x64__b", "a_1_x64__", "a_1_x64___b"}) {
        EXPECT_EQ(Recordings::familyOfPackage(name), "") << name;
    }
}

} // namespace
