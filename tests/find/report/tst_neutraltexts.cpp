#include "find/report/NeutralTexts.h"

#include "common/QtPrinters.h"
#include "find/catalogue/FinderTypes.h"
#include "find/explain/EventText.h"
#include "recordings/RegValues.h"

#include <gtest/gtest.h>

namespace {

using namespace Find;

const Recordings::NeutralNames& names() {
    static const Recordings::NeutralNames names({{"anna", "user", true}, {"bob", "user-2", false}}, "Users");
    return names;
}

QStringList told(const TraceEvent& event) {
    return describeEvent(neutralEvent(event, names()));
}

const Trace::KeyPlace annasKey = {"HKEY_CURRENT_USER", 64, "Software\\Anna"};

TEST(NeutralTexts, AreInEveryEventThatHasOne) {
    const QByteArray text = Recordings::storedText("C:\\Users\\anna\\x");
    EXPECT_EQ(told(Trace::Key{annasKey, 0}),
              QStringList{"registry key HKEY_CURRENT_USER\\Software\\user (64-bit view)"});
    EXPECT_EQ(told(Trace::Value{annasKey, "Anna", 0, 1, text}), QStringList{"    user = \"C:\\Users\\user\\x\""});
    EXPECT_EQ(told(Trace::Value{annasKey, "x", 0, 2, text}), QStringList{"    x = \"\" (REG_EXPAND_SZ)"})
        << "as recorded: finders make nothing of it";
    const QByteArray command = Recordings::storedText("\"C:\\Users\\anna\\u.exe\" --token=SECRET");
    EXPECT_EQ(told(Trace::Value{annasKey, "UninstallString", 0, 1, command}),
              QStringList{"    UninstallString = \"C:\\Users\\user\\u.exe\""});
    EXPECT_EQ(told(Trace::Exists{"C:\\Users\\Anna\\x.exe", true}), QStringList{"C:\\Users\\user\\x.exe: is there"});
    EXPECT_EQ(told(Trace::List{"C:\\Users\\Anna", "*.acf", {"Anna.acf"}}),
              (QStringList{"C:\\Users\\user, files *.acf: 1", "    user.acf"}));
    EXPECT_EQ(told(Trace::Walk{"C:\\Users\\Anna", {"Anna"}, {"anna.lnk"}, {}, {}}),
              (QStringList{"C:\\Users\\user: 2 entries", "    user", "    user.lnk"}));
    EXPECT_EQ(told(Trace::Read{"C:\\Anna.vdf", 3}), QStringList{"file C:\\user.vdf: 3 bytes"});
    EXPECT_EQ(told(Trace::Shortcut{"C:\\Anna.lnk", "C:\\Anna.exe"}),
              QStringList{"shortcut C:\\user.lnk: leads to C:\\user.exe"});
    EXPECT_EQ(told(Trace::ShellFolder{5, "C:\\Users\\Anna"}),
              QStringList{"Documents (shell folder 5): C:\\Users\\user"});
    EXPECT_EQ(told(Trace::Environment{"OculusBase", QString("C:\\Anna")}),
              QStringList{"environment variable OculusBase: C:\\user"});
    EXPECT_EQ(told(Trace::UserLocation{"x", "C:\\Anna"}), QStringList{"the user's folder for \"x\": C:\\user"});
    EXPECT_EQ(told(Trace::Log{"x", "E", "Anna fell"}), QStringList{"log: user fell"});
    EXPECT_EQ(told(Trace::Note{"None is in C:\\Anna."}), QStringList{"* None is in C:\\user."});
    const TraceEvent entry = neutralEvent(Trace::Entry{"Anna", "C:\\Anna"}, names());
    EXPECT_EQ(std::get<Trace::Entry>(entry).name, "user");
    EXPECT_EQ(std::get<Trace::Entry>(entry).folder, "C:\\user");
    const TraceEvent keys = neutralEvent(Trace::SubKeys{annasKey, {"Anna", "Wal"}}, names());
    EXPECT_EQ(std::get<Trace::SubKeys>(keys).names, (QStringList{"user", "Wal"}));
    EXPECT_EQ(std::get<Trace::SubKeys>(keys).place.key, "Software\\user");
}

TEST(NeutralTexts, AreInAListWhereThePathTellsThatTheNameIsPrivate) {
    EXPECT_EQ(told(Trace::Walk{"C:\\Users", {"bob"}, {}, {}, {}}), (QStringList{"C:\\Users: 1 entry", "    user-2"}));
    EXPECT_EQ(told(Trace::Walk{"C:\\Games", {"bob"}, {}, {}, {}}), (QStringList{"C:\\Games: 1 entry", "    bob"}));
}

TEST(NeutralTexts, AreInNoAppPackage) {
    EXPECT_EQ(told(Trace::Package{"Anna.Game_x", true, "Anna.Game_1_x64__x", {"Anna.Game_x!App"}}),
              QStringList{"app package Anna.Game_x: Anna.Game_1_x64__x, Anna.Game_x!App"});
}

TEST(NeutralTexts, AreInAnswers) {
    const GameAnswer game = neutralAnswer(
        GameAnswer{"Anna's Quest", true, {"C:\\anna\\a.exe", "C:\\anna\\b.exe", {"C:\\anna\\c.exe"}, "C:\\anna"}},
        names());
    EXPECT_EQ(game.name, "Anna's Quest") << "from the catalogue";
    EXPECT_EQ(game.location.launchCommand, "C:\\user\\a.exe");
    EXPECT_EQ(game.location.executablePath, "C:\\user\\b.exe");
    EXPECT_EQ(game.location.executablePaths, QStringList{"C:\\user\\c.exe"});
    EXPECT_EQ(game.location.installFolder, "C:\\user");
    EXPECT_EQ(neutralAnswer(RuntimeAnswer{"x", "x", true, {"C:\\anna"}}, names()).values, QStringList{"C:\\user"});
}

TEST(NeutralTexts, AreInWhatFindersOfAGameSearchFor) {
    FinderEntry folder;
    folder.type = findFinderType("folder");
    folder.subject = "C:\\Users\\anna\\Wal";
    folder.folderName = "anna";
    folder.executables = QStringList{"anna.exe"};
    FinderEntry multi;
    multi.type = findFinderType("multi");
    multi.finders = {folder};
    const FinderEntry neutral = neutralGame({"Anna", {multi}}, names()).finders.front().finders.front();
    EXPECT_EQ(neutral.subject, "C:\\Users\\user\\Wal");
    EXPECT_EQ(neutral.folderName, "user");
    EXPECT_EQ(neutral.executables, QStringList{"user.exe"});
}

} // namespace
