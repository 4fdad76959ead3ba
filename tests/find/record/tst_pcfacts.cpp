#include "Trace.h"

#include "find/record/IndexEntries.h"
#include "find/record/InstalledPackages.h"
#include "find/record/PcFacts.h"

#include "common/QtPrinters.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using Host::NeutralNames;
using Host::PcFacts;

QJsonObject render(std::initializer_list<Host::TraceEvent> events, const NeutralNames& names = {}) {
    PcFacts facts;
    for (const Host::TraceEvent& one : events) {
        facts.add(one);
    }
    return QJsonDocument::fromJson(facts.render(names)).object();
}

TEST(PcFacts, HaveWhatTheTraceTells) {
    const QJsonObject json = render({
        Trace::ShellFolder{11, "C:\\Users\\anna\\Start Menu"},
        Trace::ShellFolder{35, ""},
        Trace::ShellFolder{99, "C:\\x"},
        Trace::Volume{"D:\\", "\\\\?\\Volume{1}\\"},
        Trace::Environment{"OculusBase", QString("")},
        Trace::Environment{"missing", std::nullopt},
        Trace::UserLocation{"wal", "D:\\Wal"},
        Trace::UserLocation{"WAL", "D:\\Wal"},
        Trace::UserLocation{"kein", ""},
    });
    EXPECT_EQ(json, (QJsonObject{
                        {"shellFolders", QJsonObject{{"startMenu", "C:\\Users\\anna\\Start Menu"}}},
                        {"volumes", QJsonObject{{"D", "\\\\?\\Volume{1}\\"}}},
                        {"environment", QJsonObject{{"OculusBase", ""}}},
                        {"userLocations", QJsonObject{{"wal", "D:\\Wal"}}},
                    }));
}

TEST(PcFacts, HaveNoPackagesWhereTheSystemKnowsNone) {
    const Trace::Package none{"a_b", false, "", ""};
    const Trace::Package missing{"a_b", true, "", ""};
    EXPECT_FALSE(render({none}).contains("packages"));
    EXPECT_EQ(render({missing})["packages"], QJsonArray());
}

TEST(PcFacts, HavePackagesOnce) {
    const Trace::Package package{"Maker.Game_abc", true, "Maker.Game_1_x64__abc", "Maker.Game_abc!App"};
    const Trace::Package library{"Maker.Lib_abc", true, "Maker.Lib_1_x64__abc", ""};
    const QJsonArray packages = render({package, library, package})["packages"].toArray();
    ASSERT_EQ(packages.size(), 2);
    EXPECT_EQ(packages[0].toObject(), (QJsonObject{{"family", "Maker.Game_abc"},
                                                   {"fullName", "Maker.Game_1_x64__abc"},
                                                   {"applicationIds", QJsonArray{"Maker.Game_abc!App"}}}));
    EXPECT_EQ(packages[1].toObject()["applicationIds"], QJsonArray());
}

TEST(PcFacts, HaveTheAttributesOfWhatIsInTheStartMenu) {
    const QJsonObject json =
        render({Trace::Walk{"C:\\Menu", {}, {"desktop.ini"}, {"desktop.ini", "folder"}, {"desktop.ini"}},
                Trace::Walk{"\\\\server\\Menu", {}, {}, {"x"}, {}}});
    EXPECT_EQ(json["hidden"], (QJsonArray{"C:\\Menu\\desktop.ini", "C:\\Menu\\folder"}));
    EXPECT_EQ(json["system"], QJsonArray{"C:\\Menu\\desktop.ini"});
}

TEST(PcFacts, HaveNeutralNames) {
    const NeutralNames names({{"anna", "user"}}, "Users");
    const QJsonObject json =
        render({Trace::ShellFolder{11, "C:\\Users\\anna\\Menu"}, Trace::UserLocation{"anna", "D:\\anna\\x"},
                Trace::Walk{"C:\\Users\\anna", {}, {}, {"x"}, {}}},
               names);
    EXPECT_EQ(json["shellFolders"]["startMenu"], "C:\\Users\\user\\Menu");
    EXPECT_EQ(json["userLocations"].toObject(), (QJsonObject{{"anna", "D:\\user\\x"}})) << "the key is a game's";
    EXPECT_EQ(json["hidden"], QJsonArray{"C:\\Users\\user\\x"});
}

TEST(IndexEntries, AreThoseOfTheirList) {
    using Trace::Entry;
    const Host::IndexEntries entries(
        {Entry{"lost", "0"}, Trace::IndexBegin{"SteamLibraries"}, Trace::FinderBegin{1}, Entry{"1", "D:/a"},
         Entry{"2", "D:/a"}, Entry{"1", "D:/b"}, Trace::IndexEnd{"SteamLibraries", 3}, Entry{"lost", "0"},
         Trace::IndexBegin{"EpicManifests"}, Entry{"epic", "E:/"}, Trace::IndexEnd{"EpicManifests", 1}});
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
