#include "catalogue/GamesExplorerIndex.h"

#include "support/RegistryKey.h"

#include "common/Games.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders.GameForWindow";

class GamesExplorerIndexTest : public ::testing::Test {
protected:
    /// All entries, one text each.
    QStringList entries() {
        QStringList texts;
        for (const GamesExplorerEntry& entry : index.entries()) {
            texts.append(
                QStringList{entry.keyName, entry.title, entry.appExePath, entry.configApplicationPath}.join(" | "));
        }
        return texts;
    }

    TestPc pc;
    GamesExplorerIndex index;
};

TEST_F(GamesExplorerIndexTest, ListsThe32BitViewBeforeThe64BitView) {
    addGame(pc, {"{a}", "Sixty-four", "C:\\64\\x.exe", "C:\\64", View::view64});
    addGame(pc, {"{b}", "Thirty-two", "C:\\32\\x.exe", "C:\\32", View::view32});
    EXPECT_THAT(entries(),
                ElementsAre("{b} | Thirty-two | C:\\32\\x.exe | C:\\32", "{a} | Sixty-four | C:\\64\\x.exe | C:\\64"));
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: Title: Thirty-two, C:\\32\\x.exe", "A: Title: Sixty-four, C:\\64\\x.exe"));
}

TEST_F(GamesExplorerIndexTest, AGameInBothViewsIsThereTwice) {
    addGame(pc, {"{a}", "X", "C:\\X\\x.exe", {}, View::view64});
    addGame(pc, {"{a}", "X", "C:\\X\\x.exe", {}, View::view32});
    EXPECT_THAT(entries(), ElementsAre("{a} | X | C:\\X\\x.exe | ", "{a} | X | C:\\X\\x.exe | "));
}

TEST_F(GamesExplorerIndexTest, AMissingCatalogueIsAnEmptyIndex) {
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: No apps"));
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(GamesExplorerIndexTest, AnEmptyCatalogueIsAnEmptyIndex) {
    for (const quint32 view : {View::view32, View::view64}) {
        pc.key({RootKey::LocalMachine, gamesKeyPath, view});
    }
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: No apps"));
}

TEST_F(GamesExplorerIndexTest, AUsersCatalogueIsNotRead) {
    pc.value({RootKey::CurrentUser, gamesKeyPath + "\\{a}", View::view64}, "Title", "X");
    EXPECT_THAT(entries(), IsEmpty());
}

TEST_F(GamesExplorerIndexTest, AnEntryWithoutValuesCountsAsWell) {
    addGame(pc, {"{a}", {}, {}, {}, View::view32});
    EXPECT_THAT(entries(), ElementsAre("{a} |  |  | "));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Title: , "));
}

TEST_F(GamesExplorerIndexTest, TextsAreKeptAsRegistered) {
    addGame(pc, {"{a}", " Käfer 競走 %s ", " C:/Spiele\\%d\\x.exe ", "C:\\Spiele\\", View::view64});
    EXPECT_THAT(entries(), ElementsAre("{a} |  Käfer 競走 %s  |  C:/Spiele\\%d\\x.exe  | C:\\Spiele\\"));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Title:  Käfer 競走 %s ,  C:/Spiele\\%d\\x.exe "));
}

TEST_F(GamesExplorerIndexTest, ValuesOfOtherTypesReadAsTheRegistryStringDoes) {
    const TestKey key{RootKey::LocalMachine, gamesKeyPath + "\\{a}", View::view64};
    pc.number(key, "Title", 0);
    pc.value(key, "AppExePath", 2, QByteArray("%\0S\0%\0\0\0", 8));
    const QString folder = "C:\\" + QString(300, 'f');
    pc.value(key, "ConfigApplicationPath", folder);
    EXPECT_THAT(entries(), ElementsAre("{a} | 0 | ? | " + folder));
}

TEST_F(GamesExplorerIndexTest, FindsTitlesIgnoringCase) {
    addGame(pc, {"{1}", "Some Game", "C:\\1.exe", {}, View::view32});
    addGame(pc, {"{2}", "Some Game 2", "C:\\2.exe", {}, View::view32});
    addGame(pc, {"{3}", "SOME GAME", "C:\\3.exe", {}, View::view32});
    QStringList keys;
    for (const GamesExplorerEntry& entry : index.findByTitle("some GAME")) {
        keys.append(entry.keyName);
    }
    EXPECT_THAT(keys, ElementsAre("{1}", "{3}"));
    EXPECT_THAT(index.findByTitle("Some"), IsEmpty());
}

} // namespace
