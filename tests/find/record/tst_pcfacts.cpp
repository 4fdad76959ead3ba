#include "Trace.h"

#include "find/record/IndexEntries.h"
#include "find/record/InstalledPackages.h"
#include "find/record/PcFacts.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using Host::NeutralNames;
using Host::PcFacts;
using TestTrace::event;

QJsonObject render(std::initializer_list<Host::TraceEvent> events, const NeutralNames& names = {}) {
    PcFacts facts;
    for (const Host::TraceEvent& one : events) {
        facts.add(one);
    }
    return QJsonDocument::fromJson(facts.render(names)).object();
}

TEST(PcFacts, HaveWhatTheTraceTells) {
    const QJsonObject json = render({
        event("shellFolder", {{"csidl", 11}, {"path", "C:\\Users\\anna\\Start Menu"}}),
        event("shellFolder", {{"csidl", 35}, {"path", ""}}),
        event("shellFolder", {{"csidl", 99}, {"path", "C:\\x"}}),
        event("volume", {{"drive", "D:\\"}, {"name", "\\\\?\\Volume{1}\\"}}),
        event("environment", {{"name", "OculusBase"}, {"value", ""}}),
        event("environment", {{"name", "missing"}}),
        event("userLocation", {{"key", "wal"}, {"path", "D:\\Wal"}}),
        event("userLocation", {{"key", "WAL"}, {"path", "D:\\Wal"}}),
        event("userLocation", {{"key", "kein"}, {"path", ""}}),
    });
    EXPECT_EQ(json, (QJsonObject{
                        {"shellFolders", QJsonObject{{"startMenu", "C:\\Users\\anna\\Start Menu"}}},
                        {"volumes", QJsonObject{{"D", "\\\\?\\Volume{1}\\"}}},
                        {"environment", QJsonObject{{"OculusBase", ""}}},
                        {"userLocations", QJsonObject{{"wal", "D:\\Wal"}}},
                    }));
}

TEST(PcFacts, HaveNoPackagesWhereTheSystemKnowsNone) {
    const auto none = event("package", {{"family", "a_b"}, {"supported", false}});
    const auto missing = event("package", {{"family", "a_b"}, {"supported", true}, {"fullName", ""}});
    EXPECT_FALSE(render({none}).contains("packages"));
    EXPECT_EQ(render({missing})["packages"], QJsonArray());
}

TEST(PcFacts, HavePackagesOnce) {
    const auto package = event("package", {{"family", "Maker.Game_abc"},
                                           {"supported", true},
                                           {"fullName", "Maker.Game_1_x64__abc"},
                                           {"applicationId", "Maker.Game_abc!App"}});
    const auto library = event("package", {{"family", "Maker.Lib_abc"},
                                           {"supported", true},
                                           {"fullName", "Maker.Lib_1_x64__abc"},
                                           {"applicationId", ""}});
    const QJsonArray packages = render({package, library, package})["packages"].toArray();
    ASSERT_EQ(packages.size(), 2);
    EXPECT_EQ(packages[0].toObject(), (QJsonObject{{"family", "Maker.Game_abc"},
                                                   {"fullName", "Maker.Game_1_x64__abc"},
                                                   {"applicationIds", QJsonArray{"Maker.Game_abc!App"}}}));
    EXPECT_EQ(packages[1].toObject()["applicationIds"], QJsonArray());
}

TEST(PcFacts, HaveTheAttributesOfWhatIsInTheStartMenu) {
    const QJsonObject json = render({event("walk", {{"path", "C:\\Menu"},
                                                    {"files", QJsonArray{"desktop.ini"}},
                                                    {"hidden", QJsonArray{"desktop.ini", "folder"}},
                                                    {"system", QJsonArray{"desktop.ini"}}}),
                                     event("walk", {{"path", "\\\\server\\Menu"}, {"hidden", QJsonArray{"x"}}})});
    EXPECT_EQ(json["hidden"], (QJsonArray{"C:\\Menu\\desktop.ini", "C:\\Menu\\folder"}));
    EXPECT_EQ(json["system"], QJsonArray{"C:\\Menu\\desktop.ini"});
}

TEST(PcFacts, HaveNeutralNames) {
    const NeutralNames names({{"anna", "user"}}, "Users");
    const QJsonObject json = render({event("shellFolder", {{"csidl", 11}, {"path", "C:\\Users\\anna\\Menu"}}),
                                     event("userLocation", {{"key", "anna"}, {"path", "D:\\anna\\x"}}),
                                     event("walk", {{"path", "C:\\Users\\anna"}, {"hidden", QJsonArray{"x"}}})},
                                    names);
    EXPECT_EQ(json["shellFolders"]["startMenu"], "C:\\Users\\user\\Menu");
    EXPECT_EQ(json["userLocations"].toObject(), (QJsonObject{{"anna", "D:\\user\\x"}})) << "the key is a game's";
    EXPECT_EQ(json["hidden"], QJsonArray{"C:\\Users\\user\\x"});
}

TEST(IndexEntries, AreThoseOfTheirList) {
    const auto entry = [](const char* name, const char* folder) {
        return event("entry", {{"name", name}, {"folder", folder}});
    };
    const auto edge = [](const char* which, const char* name) {
        return event(which, {{"what", "index"}, {"name", name}});
    };
    const Host::IndexEntries entries(
        {entry("lost", "0"), edge("begin", "SteamLibraries"), event("begin", {{"what", "finder"}, {"number", 1}}),
         entry("1", "D:/a"), entry("2", "D:/a"), entry("1", "D:/b"), edge("end", "SteamLibraries"), entry("lost", "0"),
         edge("begin", "EpicManifests"), entry("epic", "E:/"), edge("end", "EpicManifests")});
    const auto texts = [](const std::vector<Host::IndexEntry>& list) {
        QStringList lines;
        for (const Host::IndexEntry& one : list) {
            lines.append(one.name + '@' + one.folder);
        }
        return lines;
    };
    EXPECT_EQ(texts(entries.of("SteamLibraries")), (QStringList{"1@D:/a", "2@D:/a"})) << "each name once";
    EXPECT_EQ(texts(entries.onePerFolder("SteamLibraries")), (QStringList{"1@D:/a", "1@D:/b"}));
    EXPECT_EQ(texts(entries.of("EpicManifests")), QStringList{"epic@E:/"});
    EXPECT_EQ(texts(entries.of("StartMenu")), QStringList());
}

TEST(InstalledPackages, TheFamilyIsThePackagesNameAndItsPublisher) {
    EXPECT_EQ(Host::familyOfPackage("Maker.Game_1.2.3.0_x64__8wekyb3d8bbwe"), "Maker.Game_8wekyb3d8bbwe");
    EXPECT_EQ(Host::familyOfPackage("Maker.Game_1.2.3.0_neutral_split.scale-100_8wekyb3d8bbwe"),
              "Maker.Game_8wekyb3d8bbwe");
    for (const char* const name : {"", "Maker.Game", "a_b_c_d", "_1_x64__b", "a_1_x64__", "a_1_x64___b"}) {
        EXPECT_EQ(Host::familyOfPackage(name), "") << name;
    }
}

} // namespace
