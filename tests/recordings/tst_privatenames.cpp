#include "recordings/PrivateNames.h"
#include "recordings/RegValues.h"
#include "recordings/ShellLink.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Recordings::NameSources;
using Recordings::RecordedTexts;

/// The names that are chosen, as "anna=user"; one that is not replaced everywhere as "anna=user only beside".
QStringList chosen(const NameSources& sources, const QStringList& places = {}, const RecordedTexts& texts = {}) {
    QStringList names;
    for (const Recordings::PrivateName& name : Recordings::choosePrivateNames(sources, places, texts)) {
        names.append(name.name + '=' + name.neutral + (name.isEverywhere ? "" : " only beside"));
    }
    return names;
}

TEST(PrivateNames, AreTheUsersTheProfilesAndTheMachines) {
    EXPECT_EQ(chosen({"Anna", "C:\\Users\\annal", {"KAEFER"}}), (QStringList{"annal=user", "Anna=user", "KAEFER=pc"}));
    EXPECT_EQ(chosen({"anna", "D:/profiles/Anna", {"Kaefer", "KAEFER"}}), (QStringList{"Anna=user", "Kaefer=pc"}));
    EXPECT_EQ(chosen({}), QStringList());
    EXPECT_EQ(chosen({"", "C:\\", {""}}), QStringList());
    EXPECT_EQ(Recordings::profilesFolderName({"", "D:\\Profile\\anna", {}}), "Profile");
    EXPECT_EQ(Recordings::profilesFolderName({}), "Users");
}

TEST(PrivateNames, ThatAreNeutralAlreadyStay) {
    EXPECT_EQ(chosen({"User", "C:\\Users\\user", {"PC"}}), QStringList());
}

TEST(PrivateNames, ThatAreShortOrWordsOfPlacesAreReplacedInOnePlaceOnly) {
    EXPECT_EQ(chosen({"al", "C:\\Users\\al", {"Steam"}}, {"Steam"}),
              (QStringList{"al=user only beside", "Steam=pc only beside"}));
    const QStringList places{"SOFTWARE\\Maker of Games", "Max Power", "Program Files"};
    EXPECT_EQ(chosen({"max", "", {"MAKER"}}, places), (QStringList{"max=user only beside", "MAKER=pc only beside"}));
    EXPECT_EQ(chosen({"maxi", "", {"make"}}, places), (QStringList{"maxi=user", "make=pc"}));
    EXPECT_EQ(chosen({"Programmer", "", {}}, places), QStringList{"Programmer=user only beside"}) << "PROGRA~1";
}

TEST(PrivateNames, NeverMakeTwoPathsOne) {
    EXPECT_EQ(chosen({"anna", "C:\\Users\\anna", {}}, {}, {{"C:/Users/anna", "C:/Users/User"}, {}}),
              QStringList{"anna=user-2"});
    EXPECT_EQ(chosen({"anna", "C:\\Users\\anna", {}}, {}, {{"D:/x-anna", "D:/X-user", "D:/x-user-2"}, {}}),
              QStringList{"anna=user-3"});
    EXPECT_EQ(chosen({"anna", "C:\\Users\\anna.KAEFER", {}}, {}, {{"C:/Users/anna", "C:/Users/anna.KAEFER"}, {}}),
              (QStringList{"anna.KAEFER=user", "anna=user-2"}));
    EXPECT_EQ(chosen({"anna", "", {"KAEFER"}}, {}, {{"D:/anna/KAEFER", "D:/user/pc"}, {}}),
              (QStringList{"anna=user", "KAEFER=pc-2"}));
}

TEST(PrivateNames, MayMakeTwoNamesOfTheUserOne) {
    const RecordedTexts texts{{"C:/Users/CHRIST~1/x", "C:/Users/Christopher/x"}, {}};
    EXPECT_EQ(chosen({"", "C:\\Users\\Christopher", {}}, {}, texts), QStringList{"Christopher=user"});
}

TEST(PrivateNames, AreThoseOfOtherUsersToo) {
    const RecordedTexts texts{
        {"C:/Users/bert/x", "D:/Users/Anna", "HKEY_USERS\\bert"},
        {"\"c:\\users\\Christa\\x.exe\"", "C:\\Users\\Public\\x", "C:\\Users\\BERT", "C:\\Users\\user"}};
    EXPECT_EQ(chosen({"anna", "C:\\Users\\anna", {}}, {}, texts),
              (QStringList{"anna=user", "bert=user-2 only beside", "Christa=user-3 only beside"}));
}

TEST(PrivateNames, OfOtherUsersAreKnownFromEveryTextOfTheRecording) {
    const auto path = [](const char* text) { return *Recordings::DrivePath::parse(text); };
    const auto kind = Recordings::File::Kind::File;
    Recordings::Pc pc;
    pc.drives.make(path("C:/Users/a1/x"), kind);
    pc.drives.make(path("D:/x.lnk"), kind).contents = Recordings::renderShellLink("C:\\Users\\a2\\x.exe");
    pc.drives.make(path("D:/x.vdf"), kind).contents =
        QByteArray("\"path\" \"C:\\\\Users\\\\a3\\\\x\"\n\"path\" \"C:/Users/a4\"");
    pc.registry.make(Recordings::RegKey::Root::CurrentUser, {"Software"}, Recordings::RegistryView::Bits64)
        .apply({"x", false, 1, Recordings::storedText("C:\\Users\\a5\\x;D:\\Users\\a6")});
    pc.shellFolders.insert(11, "C:\\Users\\a7\\Start Menu");
    pc.environment.insert("OculusBase", "C:\\Users\\a8\\x");
    pc.userLocations.insert("wal", "C:\\Users\\a9");
    pc.hostExecutable = "C:\\Users\\a10\\host.exe";
    QStringList names = chosen({"anna", "C:\\Users\\anna", {}}, {}, Recordings::textsOf(pc));
    EXPECT_EQ(names.join(' ').remove(" only beside"),
              "anna=user a1=user-2 a2=user-3 a3=user-4 a4=user-5 a5=user-6 a6=user-7 a7=user-8 a8=user-9 a9=user-10 "
              "a10=user-11");
}

TEST(PrivateNames, AreKnownFromTheShellsFoldersToo) {
    const auto profile = [](const char* folder) { return Recordings::profileAmong({{11, folder}}); };
    EXPECT_EQ(profile("C:\\Users\\anna\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu"), "C:/Users/anna");
    EXPECT_EQ(profile("D:\\Profile\\anna\\appdata\\x"), "D:/Profile/anna");
    EXPECT_EQ(profile("C:\\users\\anna\\Start Menu"), "C:/users/anna");
    EXPECT_EQ(profile("C:\\ProgramData\\Start Menu"), "");
}

} // namespace
