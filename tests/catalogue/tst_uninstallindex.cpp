#include "catalogue/UninstallIndex.h"

#include "common/Programs.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"
#include "recordings/RegValues.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders.Uninstall";

QString textOf(const UninstallEntry& entry) {
    return QStringList{entry.keyPath, entry.displayName, entry.installLocation, entry.uninstallString}.join(" | ");
}

QStringList namesOf(const std::vector<UninstallEntry>& entries) {
    QStringList names;
    for (const UninstallEntry& entry : entries) {
        names.append(entry.displayName);
    }
    return names;
}

class UninstallIndexTest : public ::testing::Test {
protected:
    /// The one key that every Windows has.
    UninstallIndexTest() { pc.key({RootKey::LocalMachine, uninstallKeyPath, View::view64}); }

    /// All entries, one text each.
    QStringList entries() {
        QStringList texts;
        for (const UninstallEntry& entry : index.entries()) {
            texts.append(textOf(entry));
        }
        return texts;
    }

    /// Sets one value of an entry that is complete without it.
    void setRaw(const QString& valueName, quint32 type, const QByteArray& bytes) {
        addProgram(pc, {"X", "X", "C:\\X", "C:\\X\\u.exe"});
        pc.value({RootKey::LocalMachine, uninstallKeyPath + "\\X", View::view32}, valueName, type, bytes);
    }

    TestPc pc;
    UninstallIndex index;
};

TEST_F(UninstallIndexTest, ListsBothViewsAndBothRootsInOrder) {
    addProgram(pc, {"a", "User's", "C:\\User", "u.exe", RootKey::CurrentUser, View::view64});
    addProgram(pc, {"b", "Machine's, 64", "C:\\M64", {}, RootKey::LocalMachine, View::view64});
    addProgram(pc, {"c", "Machine's, 32", {}, "C:\\M32\\u.exe", RootKey::LocalMachine, View::view32});
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath + "\\c | Machine's, 32 |  | C:\\M32\\u.exe",
                                       uninstallKeyPath + "\\a | User's | C:\\User | u.exe",
                                       uninstallKeyPath + "\\b | Machine's, 64 | C:\\M64 | ",
                                       uninstallKeyPath + "\\a | User's | C:\\User | u.exe"))
        << "what both views show is there twice";
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 1, Scope: 0 ===", "A: Machine's, 32, , C:\\M32\\u.exe",
                                                  "A: === View: 1, Scope: 1 ===", "A: User's, C:\\User, u.exe",
                                                  "A: === View: 0, Scope: 0 ===", "A: Machine's, 64, C:\\M64, ",
                                                  "A: === View: 0, Scope: 1 ===", "A: User's, C:\\User, u.exe"));
}

TEST_F(UninstallIndexTest, AKeyThatDoesNotOpenIsPassedOverSilently) {
    addProgram(pc, {"b", "Machine's, 64", "C:\\M64", {}, RootKey::LocalMachine, View::view64});
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath + "\\b | Machine's, 64 | C:\\M64 | "));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 0, Scope: 0 ===", "A: Machine's, 64, C:\\M64, "));
}

TEST_F(UninstallIndexTest, AKeyWithoutSubKeysHasItsHeadline) {
    pc.key({RootKey::LocalMachine, uninstallKeyPath, View::view32});
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 1, Scope: 0 ===", "A: === View: 0, Scope: 0 ==="));
}

TEST_F(UninstallIndexTest, NothingInstalledIsAnEmptyIndexWithALog) {
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 0, Scope: 0 ==="));
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(UninstallIndexTest, EntriesKeepTheRegistrysOrder) {
    for (const char* key : {"zebra", "Beta", "alpha"}) {
        addProgram(pc, {key, key, "C:\\X", {}});
    }
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath + "\\alpha | alpha | C:\\X | ",
                                       uninstallKeyPath + "\\Beta | Beta | C:\\X | ",
                                       uninstallKeyPath + "\\zebra | zebra | C:\\X | "));
}

TEST_F(UninstallIndexTest, AnEntryNeedsANameAndAPlaceOfTwoCharacters) {
    addProgram(pc, {"1", "one character each", "C", "u"});
    addProgram(pc, {"2", "nothing but a name", {}, {}});
    addProgram(pc, {"3", "empty values", "", ""});
    addProgram(pc, {"4", {}, "C:\\NoName", "C:\\NoName\\u.exe"});
    addProgram(pc, {"5", "", "C:\\EmptyName", "C:\\EmptyName\\u.exe"});
    addProgram(pc, {"6", "a location of two", "C:", "u"});
    addProgram(pc, {"7", "an uninstaller of two", "C", "un"});
    addProgram(pc, {"8", "a blank is a character", "  ", {}});
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath + "\\6 | a location of two | C: | u",
                                       uninstallKeyPath + "\\7 | an uninstaller of two | C | un",
                                       uninstallKeyPath + "\\8 | a blank is a character |    | "));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 1, Scope: 0 ===", "A: a location of two, C:, u",
                                                  "A: an uninstaller of two, C, un", "A: a blank is a character,   , ",
                                                  "A: === View: 0, Scope: 0 ==="));
}

TEST_F(UninstallIndexTest, AValueThatIsNotTextIsEmpty) {
    constexpr quint32 regExpandSz = 2;
    constexpr quint32 regBinary = 3;
    const QByteArray expandable = Recordings::storedText("%ProgramFiles%\\X");
    setRaw("InstallLocation", Platform::regDword, QByteArray(4, '\7'));
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath + "\\X | X |  | C:\\X\\u.exe"));

    UninstallIndex withExpandable;
    setRaw("InstallLocation", regExpandSz, expandable);
    EXPECT_EQ(withExpandable.entries().front().installLocation, "");

    UninstallIndex withBinary;
    setRaw("UninstallString", regBinary, "abcdef");
    EXPECT_EQ(withBinary.entries().front().uninstallString, "");

    UninstallIndex withoutName;
    setRaw("DisplayName", Platform::regDword, QByteArray(4, '\7'));
    EXPECT_THAT(withoutName.entries(), IsEmpty());
}

TEST_F(UninstallIndexTest, LongTextIsReadWhole) {
    const QString name(300, u'n');
    const QString location = "C:\\" + QString(300, u'd');
    addProgram(pc, {"X", name, location, {}});
    EXPECT_EQ(index.entries().front().displayName, name);
    EXPECT_EQ(index.entries().front().installLocation, location);
}

TEST_F(UninstallIndexTest, TextIsExactInEntriesAndLog) {
    addProgram(pc, {"{4C-ß}", "Käferrennen 競走 %s 100%", " C:\\Spiele\\%d ", "\"C:\\ü.exe\" /S"});
    EXPECT_THAT(entries(), ElementsAre(uninstallKeyPath +
                                       "\\{4C-ß} | Käferrennen 競走 %s 100% |  C:\\Spiele\\%d  | \"C:\\ü.exe\" /S"));
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: === View: 1, Scope: 0 ===",
                                                  "A: Käferrennen 競走 %s 100%,  C:\\Spiele\\%d , \"C:\\ü.exe\" /S",
                                                  "A: === View: 0, Scope: 0 ==="));
}

TEST_F(UninstallIndexTest, FindsEntriesByNameIgnoringCase) {
    addProgram(pc, {"1", "Space Racer", "C:\\1", {}});
    addProgram(pc, {"2", "Space Racer 2", "C:\\2", {}});
    addProgram(pc, {"3", "SPACE RACER", "C:\\3", {}});
    EXPECT_THAT(namesOf(index.findByName("space racer", 0)), ElementsAre("Space Racer", "SPACE RACER"));
    EXPECT_THAT(namesOf(index.findByName("space racer", 2)), ElementsAre("Space Racer", "SPACE RACER"));
    EXPECT_THAT(namesOf(index.findByName("ACE r", 1)), ElementsAre("Space Racer", "Space Racer 2", "SPACE RACER"));
    EXPECT_THAT(namesOf(index.findByName("ace r", 0)), IsEmpty());
    EXPECT_THAT(namesOf(index.findByName("", 1)), ElementsAre("Space Racer", "Space Racer 2", "SPACE RACER"));
}

TEST_F(UninstallIndexTest, FindsEntriesByTheirExactKeyPath) {
    addProgram(pc, {"Steam App 440", "Fort", "C:\\32", {}, RootKey::LocalMachine, View::view32});
    addProgram(pc, {"Steam App 440", "Fort 64", "C:\\64", {}, RootKey::LocalMachine, View::view64});
    EXPECT_THAT(namesOf(index.findByKeyPath(uninstallKeyPath + "\\Steam App 440")), ElementsAre("Fort", "Fort 64"));
    EXPECT_THAT(namesOf(index.findByKeyPath(uninstallKeyPath + "\\steam app 440")), IsEmpty());
    EXPECT_THAT(namesOf(index.findByKeyPath("Steam App 440")), IsEmpty());
}

} // namespace
