#include "support/Trace.h"

#include "common/PcTest.h"
#include "common/QtPrinters.h"
#include "common/TraceLog.h"
#include "platform/Folders.h"
#include "platform/Registry.h"
#include "support/Environment.h"
#include "support/Files.h"
#include "support/KnownFolders.h"
#include "support/Logger.h"
#include "support/RegistryKey.h"

#include <QJsonArray>

#include <new>
#include <thread>

namespace {

const TestKey testKey{Platform::RootKey::CurrentUser, "Software\\Luruludri Test", View::view64};

QJsonObject only(const std::vector<QJsonObject>& events) {
    EXPECT_EQ(events.size(), 1U);
    return events.empty() ? QJsonObject() : events.front();
}

/// The event of a question for a value of the test's key.
QJsonObject valueEvent(const QString& name, QJsonObject fields) {
    fields.insert("event", "value");
    fields.insert("root", "HKEY_CURRENT_USER");
    fields.insert("view", 64);
    fields.insert("key", testKey.path);
    fields.insert("name", name);
    return fields;
}

using TraceTest = PcTest;

TEST_F(TraceTest, TellsWhichKeyWasOpenedInWhichView) {
    pc.key(testKey);
    const TraceLog trace;
    RegistryKey::open(testKey.path, Hive::currentUser, View::view64);
    EXPECT_EQ(only(trace.events("key")),
              (QJsonObject{
                  {"event", "key"}, {"root", "HKEY_CURRENT_USER"}, {"view", 64}, {"key", testKey.path}, {"error", 0}}));
}

TEST_F(TraceTest, TellsThatAKeyIsNotThere) {
    const TraceLog trace;
    const QString key = "Software\\Luruludri Test\\Nothing";
    RegistryKey::open(key, Hive::localMachine, View::view32);
    EXPECT_EQ(
        only(trace.events("key")),
        (QJsonObject{{"event", "key"}, {"root", "HKEY_LOCAL_MACHINE"}, {"view", 32}, {"key", key}, {"error", 2}}));
}

TEST_F(TraceTest, TellsAValueByteByByte) {
    pc.value(testKey, "Ordner", "D:\\ä");
    const TraceLog trace;
    RegistryKey::open(testKey.path, Hive::currentUser, View::view64).text("Ordner");
    EXPECT_EQ(only(trace.events("value")),
              valueEvent("Ordner", {{"error", 0}, {"type", 1}, {"data", "44003a005c00e4000000"}}));
}

TEST_F(TraceTest, TellsALongValueOnce) {
    pc.value(testKey, "Long", QString(600, 'x'));
    const TraceLog trace;
    RegistryKey::open(testKey.path, Hive::currentUser, View::view64).text("Long");
    EXPECT_EQ(only(trace.events("value"))["data"].toString().size(), 601 * 4);
}

TEST_F(TraceTest, TellsThatAValueIsNotThereWithoutData) {
    pc.key(testKey);
    const TraceLog trace;
    RegistryKey::open(testKey.path, Hive::currentUser, View::view64).text("Nothing");
    EXPECT_EQ(only(trace.events("value")), valueEvent("Nothing", {{"error", 2}}));
}

TEST_F(TraceTest, TellsTheSubKeys) {
    pc.key({testKey.root, testKey.path + "\\A", testKey.view});
    pc.key({testKey.root, testKey.path + "\\B", testKey.view});
    const TraceLog trace;
    QStringList names;
    RegistryKey::open(testKey.path, Hive::currentUser, View::view64).subKeyNames(names);
    EXPECT_EQ(only(trace.events("subkeys"))["names"].toArray(), QJsonArray({"A", "B"}));
}

TEST_F(TraceTest, TellsWhichFilesAreLookedForAndListedAndRead) {
    pc.file("C:\\Luruludri Test\\a.acf", "abc");
    const TraceLog trace;
    Files::exists("C:\\Luruludri Test\\a.acf");
    Files::folderExists("C:\\Luruludri Test\\b");
    Files::names("C:\\Luruludri Test", ".acf");
    Files::readWholeFile("C:\\Luruludri Test\\a.acf");
    const std::vector<QJsonObject> events = trace.events();
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0], QJsonObject({{"event", "exists"}, {"path", "C:\\Luruludri Test\\a.acf"}, {"found", true}}));
    EXPECT_EQ(events[1]["found"], QJsonValue(false));
    EXPECT_EQ(events[2]["pattern"].toString(), "*.acf");
    EXPECT_EQ(events[2]["names"].toArray(), QJsonArray({"a.acf"}));
    EXPECT_EQ(events[3]["bytes"].toInt(), 3);
}

TEST_F(TraceTest, TellsWhereAShortcutLeads) {
    pc.shortcut("C:\\Luruludri Test\\x.lnk", "C:\\Luruludri Test\\x.exe");
    const TraceLog trace;
    Files::shortcutTarget("C:\\Luruludri Test\\x.lnk");
    EXPECT_EQ(only(trace.events("shortcut"))["target"].toString(), "C:\\Luruludri Test\\x.exe");
}

TEST_F(TraceTest, TellsShellFoldersAndTheEnvironment) {
    pc.shellFolder(Platform::csidlCommonAppData, "C:\\Luruludri Test");
    pc.folder("C:\\Luruludri Test");
    pc.environment("LuruludriTest", "x");
    const TraceLog trace;
    knownFolderPath(Platform::csidlCommonAppData);
    environmentVariable("LuruludriTest");
    environmentVariable("LuruludriNothing");
    EXPECT_EQ(only(trace.events("shellFolder")),
              QJsonObject({{"event", "shellFolder"}, {"csidl", 35}, {"path", "C:\\Luruludri Test"}}));
    const std::vector<QJsonObject> variables = trace.events("environment");
    ASSERT_EQ(variables.size(), 2U);
    EXPECT_EQ(variables[0]["value"].toString(), "x");
    EXPECT_FALSE(variables[1].contains("value"));
}

TEST_F(TraceTest, TellsTheLinesOfTheLogs) {
    const TraceLog trace;
    Logger::create("Quorvan.Test").logError("Käfer %d", 7);
    EXPECT_EQ(only(trace.events("log")),
              (QJsonObject{{"event", "log"}, {"logger", "Quorvan.Test"}, {"level", "E"}, {"text", "Käfer 7"}}));
}

TEST_F(TraceTest, TellsNotesAndLists) {
    const TraceLog trace;
    {
        Trace::IndexSection section("Test");
        Trace::tell([] { return Trace::Entry{"Käfer", "D:\\Käfer"}; });
        Trace::note("No %ls.", qUtf16Printable(QString("Käfer")));
        section.setEntries(1);
    }
    const std::vector<QJsonObject> events = trace.events();
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0], QJsonObject({{"event", "begin"}, {"what", "index"}, {"name", "Test"}}));
    EXPECT_EQ(events[1], QJsonObject({{"event", "entry"}, {"name", "Käfer"}, {"folder", "D:\\Käfer"}}));
    EXPECT_EQ(events[2], QJsonObject({{"event", "note"}, {"text", "No Käfer."}}));
    EXPECT_EQ(events[3], QJsonObject({{"event", "end"}, {"what", "index"}, {"name", "Test"}, {"entries", 1}}));
}

TEST_F(TraceTest, TellsTheAskingOfAFinder) {
    const TraceLog trace;
    {
        Trace::FinderSection section(3);
        section.setFound(true);
    }
    const std::vector<QJsonObject> events = trace.events();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0], QJsonObject({{"event", "begin"}, {"what", "finder"}, {"number", 3}}));
    EXPECT_EQ(events[1], QJsonObject({{"event", "end"}, {"what", "finder"}, {"number", 3}, {"found", true}}));
}

TEST_F(TraceTest, MakesNoEventWhileItIsOff) {
    bool isMade = false;
    Trace::tell([&isMade] {
        isMade = true;
        return Trace::Note();
    });
    EXPECT_FALSE(isMade);
}

TEST_F(TraceTest, LosesWhatThereIsNoMemoryForAndNothingElse) {
    const TraceLog trace;
    Trace::tell([]() -> Trace::Note { throw std::bad_alloc(); });
    Trace::note("second");
    EXPECT_EQ(trace.notes(), QStringList("second"));
}

TEST_F(TraceTest, KeepsTheLinesOfThreadsApart) {
    const TraceLog trace;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([] {
            for (int line = 0; line < 50; ++line) {
                Trace::note("%s", std::string(200, 'x').c_str());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const QStringList notes = trace.notes();
    EXPECT_EQ(notes.size(), 400);
    EXPECT_EQ(notes.count(QString(200, 'x')), 400);
}

} // namespace
