#include "common/QtPrinters.h"
#include "find/explain/EventText.h"
#include "find/explain/TraceReader.h"

#include <gtest/gtest.h>

namespace {

QStringList describe(const QByteArray& line) {
    const Find::TraceEvents events = Find::parseTrace(line);
    EXPECT_EQ(events.size(), 1U) << line.toStdString();
    return events.empty() ? QStringList() : Find::describeEvent(events.front());
}

TEST(EventText, ShowsTextsAndNumbersAsTheRegistryEditorDoes) {
    EXPECT_EQ(describe(R"({"event":"value","name":"X","error":0,"type":1,"data":"4100e4000000"})"),
              QStringList({"    X = \"Aä\""}));
    EXPECT_EQ(describe(R"({"event":"value","name":"X","error":0,"type":1,"data":"4100"})"),
              QStringList({"    X = \"A\""}));
    EXPECT_EQ(describe(R"({"event":"value","name":"","error":0,"type":2,"data":"25000000"})"),
              QStringList({"    (default) = \"%\" (REG_EXPAND_SZ)"}));
    EXPECT_EQ(describe(R"({"event":"value","name":"X","error":0,"type":4,"data":"02010000"})"),
              QStringList({"    X = 258"}));
    EXPECT_EQ(describe(R"({"event":"value","name":"X","error":0,"type":3,"data":"0201"})"),
              QStringList({"    X = 2 bytes of type 3"}));
}

TEST(EventText, ATextWithQuotesGetsNoOthers) {
    // "a" -- "b"
    EXPECT_EQ(describe(R"({"event":"value","name":"","error":0,"type":1,"data":"220061002200200062000000"})"),
              QStringList({"    (default) = \"a\" b"}));
}

TEST(EventText, PathsHaveSingleBackslashes) {
    EXPECT_EQ(describe(R"({"event":"exists","path":"C:\\\\Program Files\\\\\\Steam","found":true})"),
              QStringList({"C:\\Program Files\\Steam: is there"}));
    EXPECT_EQ(describe(R"({"event":"exists","path":"\\\\server\\\\a","found":false})"),
              QStringList({"\\\\server\\a: missing"}));
}

TEST(EventText, ShellFoldersHaveTheirNames) {
    EXPECT_EQ(describe(R"({"event":"shellFolder","csidl":35,"path":"C:\\ProgramData"})"),
              QStringList({"ProgramData (shell folder 35): C:\\ProgramData"}));
    EXPECT_EQ(describe(R"({"event":"shellFolder","csidl":7,"path":""})"),
              QStringList({"shell folder 7: there is none"}));
}

TEST(EventText, SaysWhyAKeyOrAValueCannotBeRead) {
    EXPECT_EQ(describe(R"({"event":"key","root":"HKEY_USERS","view":64,"key":"K","error":5})"),
              QStringList({"registry key HKEY_USERS\\K (64-bit view): access is denied"}));
    EXPECT_EQ(describe(R"({"event":"value","name":"X","error":234})"), QStringList({"    X: error 234"}));
}

TEST(EventText, NamesWhatIsInAFolder) {
    EXPECT_EQ(describe(R"({"event":"walk","path":"C:\\M","folders":["F"],"files":["a.lnk"]})"),
              QStringList({"C:\\M: 2 entries", "    F", "    a.lnk"}));
    EXPECT_EQ(describe(R"({"event":"list","path":"C:\\M","pattern":"*.acf","names":[]})"),
              QStringList({"C:\\M, files *.acf: 0"}));
}

TEST(EventText, SaysThatTheSystemKnowsNoPackages) {
    EXPECT_EQ(describe(R"({"event":"package","family":"F","supported":false,"fullName":"","applicationIds":[]})"),
              QStringList({"app package F: this Windows knows no app packages"}));
    EXPECT_EQ(describe(R"({"event":"package","family":"F","supported":true,"fullName":"","applicationIds":[]})"),
              QStringList({"app package F: not installed"}));
    EXPECT_EQ(describe(R"({"event":"package","family":"F","supported":true,"fullName":"F1","applicationIds":[]})"),
              QStringList({"app package F: F1, without an application"}));
}

TEST(EventText, TellsVolumesVariablesAndFolders) {
    EXPECT_EQ(describe(R"({"event":"volume","drive":"D:\\","name":"\\\\?\\Volume{1}\\"})"),
              QStringList({"drive D:\\: volume \\\\?\\Volume{1}\\"}));
    EXPECT_EQ(describe(R"({"event":"environment","name":"OculusBase"})"),
              QStringList({"environment variable OculusBase: none"}));
    EXPECT_EQ(describe(R"({"event":"shellFolder","csidl":22,"path":""})"),
              QStringList({"Start menu of all users (shell folder 22): there is none"}));
    EXPECT_EQ(describe(R"({"event":"shortcut","path":"a.lnk","target":""})"),
              QStringList({"shortcut a.lnk: leads to nothing"}));
    EXPECT_EQ(describe(R"({"event":"read","path":"a","bytes":1})"), QStringList({"file a: 1 byte"}));
}

TEST(EventText, SaysNothingOfWhatTellsOfTheSearch) {
    for (const char* const line :
         {R"({"event":"trace","version":1})", R"({"event":"entry","name":"N","folder":"F"})",
          R"({"event":"begin","what":"finder","number":1})", R"({"event":"end","what":"finder","number":1})",
          R"({"event":"begin","what":"index","name":"N"})", R"({"event":"end","what":"index","name":"N"})"}) {
        EXPECT_EQ(describe(line), QStringList()) << line;
    }
}

TEST(EventText, HasALineForEachEventWhateverItsTextsHold) {
    const QByteArray hostile = R"("a\n\u001b[31m\u009b\u2028b")";
    const QString shown = "a  [31m  b";
    const QByteArray place = "\"root\":" + hostile + ",\"view\":64,\"key\":" + hostile;
    const auto tell = [&](const QByteArray& event, const QByteArray& fields) {
        return describe("{\"event\":\"" + event + "\"," + fields + "}").join("|");
    };
    EXPECT_EQ(tell("key", place), "registry key " + shown + "\\" + shown + " (64-bit view)");
    EXPECT_EQ(tell("list", "\"path\":" + hostile + ",\"pattern\":" + hostile + ",\"names\":[" + hostile + "]"),
              shown + ", files " + shown + ": 1|    " + shown);
    EXPECT_EQ(tell("volume", "\"drive\":" + hostile + ",\"name\":" + hostile), "drive " + shown + ": volume " + shown);
    EXPECT_EQ(tell("environment", "\"name\":" + hostile + ",\"value\":" + hostile),
              "environment variable " + shown + ": " + shown);
    EXPECT_EQ(tell("note", "\"text\":" + hostile), "* " + shown);
}

} // namespace
