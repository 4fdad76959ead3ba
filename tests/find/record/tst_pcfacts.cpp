#include "Trace.h"

#include "find/record/IndexEntries.h"
#include "find/record/InstalledPackages.h"
#include "find/record/PcFacts.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using TestTrace::event;

Recordings::Pc pcOf(std::initializer_list<Host::TraceEvent> events) {
    Recordings::Pc pc;
    for (const Host::TraceEvent& one : events) {
        Host::addFact(one, pc);
    }
    return pc;
}

TEST(PcFacts, AreWhatTheTraceTells) {
    const Recordings::Pc pc = pcOf({
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
    EXPECT_EQ(pc.shellFolders, (QMap<int, QString>{{11, "C:\\Users\\anna\\Start Menu"}}));
    EXPECT_EQ(pc.volumes, (QMap<QChar, QString>{{'D', "\\\\?\\Volume{1}\\"}}));
    EXPECT_EQ(pc.environment.toStringList(), QStringList{"OculusBase="});
    EXPECT_EQ(pc.userLocations, (QMap<QString, QString>{{"wal", "D:\\Wal"}}));
}

TEST(PcFacts, HaveNoPackagesWhereTheSystemKnowsNone) {
    const auto none = event("package", {{"family", "a_b"}, {"supported", false}});
    const auto missing = event("package", {{"family", "a_b"}, {"supported", true}, {"fullName", ""}});
    EXPECT_FALSE(pcOf({none}).packages);
    EXPECT_EQ(pcOf({missing}).packages, Recordings::AppPackages());
}

TEST(PcFacts, HavePackagesOnceAndWhereOneLooksForThem) {
    const auto package = event("package", {{"family", "Maker.Game_abc"},
                                           {"supported", true},
                                           {"fullName", "Maker.Game_1_x64__abc"},
                                           {"applicationIds", QJsonArray{"Maker.Game_abc!App", "Maker.Game_abc!B"}}});
    const auto library = event("package", {{"family", "Maker.Lib_abc"},
                                           {"supported", true},
                                           {"fullName", "Maker.Lib_1_x64__abc"},
                                           {"applicationIds", QJsonArray()}});
    const Recordings::Pc pc = pcOf({package, library, package});
    EXPECT_EQ(pc.packages, (Recordings::AppPackages{
                               {"Maker.Game_abc", "Maker.Game_1_x64__abc", {"Maker.Game_abc!App", "Maker.Game_abc!B"}},
                               {"Maker.Lib_abc", "Maker.Lib_1_x64__abc", {}}}));
    const auto key = pc.registry.open(Recordings::RegKey::Root::CurrentUser, Host::packagesKey().split('\\'),
                                      Recordings::RegistryView::Bits64);
    EXPECT_EQ(Recordings::Registry::subKeys(key),
              (std::vector<QString>{"Maker.Game_1_x64__abc", "Maker.Lib_1_x64__abc"}));
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
