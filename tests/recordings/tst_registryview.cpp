#include "platform/Registry.h"
#include "platform/recorded/RegistryQuestions.h"

#include <gmock/gmock.h>

namespace {

using namespace RegistryQuestions;
using Platform::RootKey;
using ::testing::ElementsAre;

using RegistryViewTest = RecordedRegistry;

TEST_F(RegistryViewTest, SeparatesTheViewsOfTheMachinesSoftware) {
    record("[HKEY_LOCAL_MACHINE\\Software\\X]\r\n@=\"64\"\r\n[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\X]\r\n@="
           "\"32\"\r\n");
    EXPECT_EQ(text(RootKey::LocalMachine, "SOFTWARE\\x", "", view64), "64");
    EXPECT_EQ(text(RootKey::LocalMachine, "SOFTWARE\\x", "", view32), "32");
    EXPECT_EQ(text(RootKey::LocalMachine, "SOFTWARE\\x", "", Platform::keyRead), "64");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\WOW6432NODE\\x", "", view64), "32");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\WOW6432NODE\\x", "", view32), "32");
    EXPECT_THAT(subKeys(RootKey::LocalMachine, "Software", view64), ElementsAre("Wow6432Node", "X"));
    EXPECT_THAT(subKeys(RootKey::LocalMachine, "Software", view32), ElementsAre("X"));
}

TEST_F(RegistryViewTest, DoesNotFallBackToTheOtherView) {
    record("[HKEY_LOCAL_MACHINE\\Software\\only64]\r\n[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\only32]\r\n");
    EXPECT_EQ(open(RootKey::LocalMachine, "Software\\only64", view32), Platform::errorFileNotFound);
    EXPECT_EQ(open(RootKey::LocalMachine, "Software\\only32", view64), Platform::errorFileNotFound);
}

TEST_F(RegistryViewTest, FilesAnExportOfASharedKeyWhereItBelongs) {
    record("[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Policies\\X]\r\n@=\"1\"\r\n"
           "[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Classes\\CLSID\\Y]\r\n@=\"2\"\r\n");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Policies\\X", "", view64), "1");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\CLSID\\Y", "", view32), "2");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\CLSID\\Y", "", view64), "error 2");
}

TEST_F(RegistryViewTest, SeparatesFewClassesOnly) {
    record("[HKEY_CLASSES_ROOT\\x]\r\n@=\"both\"\r\n[HKEY_CLASSES_ROOT\\CLSID\\y]\r\n@=\"64\"\r\n"
           "[HKEY_CLASSES_ROOT\\Wow6432Node\\CLSID\\y]\r\n@=\"32\"\r\n");
    EXPECT_EQ(text(RootKey::ClassesRoot, "x", "", view64), "both");
    EXPECT_EQ(text(RootKey::ClassesRoot, "x", "", view32), "both");
    EXPECT_EQ(text(RootKey::ClassesRoot, "clsid\\y", "", view64), "64");
    EXPECT_EQ(text(RootKey::ClassesRoot, "clsid\\y", "", view32), "32");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\CLSID\\y", "", view32), "32");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\x", "", view32), "both");
}

// HKEY_CLASSES_ROOT

TEST_F(RegistryViewTest, MergesTheUsersClassesOverTheMachines) {
    record("[HKEY_LOCAL_MACHINE\\Software\\Classes\\x]\r\n\"a\"=\"machine\"\r\n\"b\"=\"machine\"\r\n"
           "[HKEY_LOCAL_MACHINE\\Software\\Classes\\x\\shell]\r\n[HKEY_LOCAL_MACHINE\\Software\\Classes\\x\\Open]\r\n"
           "[HKEY_CURRENT_USER\\Software\\Classes\\x]\r\n\"a\"=\"user\"\r\n"
           "[HKEY_CURRENT_USER\\Software\\Classes\\x\\open]\r\n[HKEY_CURRENT_USER\\Software\\Classes\\x\\ask]\r\n");
    EXPECT_EQ(text(RootKey::ClassesRoot, "x", "a"), "user");
    EXPECT_EQ(text(RootKey::ClassesRoot, "x", "b"), "machine");
    EXPECT_THAT(subKeys(RootKey::ClassesRoot, "x"), ElementsAre("ask", "open", "shell"));
    EXPECT_EQ(open(RootKey::ClassesRoot, "x\\shell"), Platform::errorSuccess);
    EXPECT_EQ(open(RootKey::ClassesRoot, "x\\none"), Platform::errorFileNotFound);
}

TEST_F(RegistryViewTest, FilesClassesWhereWindowsDoes) {
    record("[HKEY_CURRENT_USER\\Software\\Classes\\mine]\r\n[HKEY_CLASSES_ROOT\\mine]\r\n@=\"1\"\r\n"
           "[HKEY_CLASSES_ROOT\\other]\r\n@=\"2\"\r\n");
    EXPECT_EQ(text(RootKey::CurrentUser, "Software\\Classes\\mine", ""), "1");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\mine", ""), "error 2");
    EXPECT_EQ(text(RootKey::LocalMachine, "Software\\Classes\\other", ""), "2");
}

} // namespace
