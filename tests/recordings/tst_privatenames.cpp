#include "recordings/PrivateNames.h"

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

TEST(PrivateNames, AreKnownFromTheShellsFoldersToo) {
    const auto profile = [](const char* folder) { return Recordings::profileAmong({{11, folder}}); };
    EXPECT_EQ(profile("C:\\Users\\anna\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu"), "C:/Users/anna");
    EXPECT_EQ(profile("D:\\Profile\\anna\\appdata\\x"), "D:/Profile/anna");
    EXPECT_EQ(profile("C:\\users\\anna\\Start Menu"), "C:/users/anna");
    EXPECT_EQ(profile("C:\\ProgramData\\Start Menu"), "");
}

} // namespace
