#include "TestTrace.h"

#include "find/record/PcFacts.h"
#include "recordings/WindowsNames.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

Recordings::Pc pcOf(std::initializer_list<Find::TraceEvent> events) {
    Recordings::Pc pc;
    for (const Find::TraceEvent& one : events) {
        Find::addFact(one, pc);
    }
    return pc;
}

TEST(PcFacts, AreWhatTheTraceTells) {
    const Recordings::Pc pc = pcOf({
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
    EXPECT_EQ(pc.shellFolders, (QMap<int, QString>{{11, "C:\\Users\\anna\\Start Menu"}}));
    EXPECT_EQ(pc.volumes, (QMap<QChar, QString>{{'D', "\\\\?\\Volume{1}\\"}}));
    EXPECT_EQ(pc.environment.toStringList(), QStringList{"OculusBase="});
    EXPECT_EQ(pc.userLocations, (QMap<QString, QString>{{"wal", "D:\\Wal"}}));
}

TEST(PcFacts, HaveNoPackagesWhereTheSystemKnowsNone) {
    const Trace::Package none{"a_b", false, "", {}};
    const Trace::Package missing{"a_b", true, "", {}};
    EXPECT_FALSE(pcOf({none}).packages);
    EXPECT_EQ(pcOf({missing}).packages, Recordings::AppPackages());
}

TEST(PcFacts, HavePackagesOnceAndWhereOneLooksForThem) {
    const Trace::Package package{
        "Maker.Game_abc", true, "Maker.Game_1_x64__abc", {"Maker.Game_abc!App", "Maker.Game_abc!B"}};
    const Trace::Package library{"Maker.Lib_abc", true, "Maker.Lib_1_x64__abc", {}};
    const Recordings::Pc pc = pcOf({package, library, package});
    EXPECT_EQ(pc.packages, (Recordings::AppPackages{
                               {"Maker.Game_abc", "Maker.Game_1_x64__abc", {"Maker.Game_abc!App", "Maker.Game_abc!B"}},
                               {"Maker.Lib_abc", "Maker.Lib_1_x64__abc", {}}}));
    const auto key = pc.registry.open(Recordings::RegKey::Root::CurrentUser, Recordings::packagesKey().split('\\'),
                                      Recordings::RegistryView::Bits64);
    EXPECT_EQ(Recordings::Registry::subKeys(key),
              (std::vector<QString>{"Maker.Game_1_x64__abc", "Maker.Lib_1_x64__abc"}));
}

} // namespace
