#include "support/RegistryKey.h"

#include "common/PcTest.h"
#include "common/QtPrinters.h"
#include "platform/Registry.h"
#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"

#include <gmock/gmock.h>

namespace {

using Platform::RootKey;
using Recordings::storedText;
using Recordings::toUtf16;
using ::testing::ElementsAre;

constexpr quint32 regExpandSz = 2;
constexpr quint32 regBinary = 3;
constexpr quint32 regMultiSz = 7;
constexpr quint32 regQword = 11;

const QString path = "Software\\TestMaker\\Röhre"; // below HKEY_LOCAL_MACHINE unless a test says otherwise

QByteArray littleEndian(quint32 number) {
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

class RegistryKeyTest : public PcTest {
protected:
    /// The test's key.
    static RegistryKey open() { return RegistryKey::open(path, Hive::localMachine, View::view64); }

    /// What readString gives for the one value of the test's key, or "(false)".
    static QString read(const QString& valueName = "V") {
        RegistryKey key = open();
        QString text = "untouched";
        if (!key.readString(valueName, text)) {
            EXPECT_EQ(text, "untouched");
            return "(false)";
        }
        EXPECT_EQ(key.status(), 0U);
        return text;
    }

    /// The names of its sub-keys, behind one that is there already.
    static QStringList subKeys() {
        RegistryKey key = open();
        QStringList names{"before"};
        EXPECT_TRUE(key.subKeyNames(names));
        EXPECT_EQ(key.status(), Platform::errorSuccess);
        return names;
    }

    const TestKey testKey{RootKey::LocalMachine, path};
};

TEST_F(RegistryKeyTest, ReadsText) {
    pc.value(testKey, "V", "C:\\Spiele\\Käfer \"1\"");
    EXPECT_EQ(read(), "C:\\Spiele\\Käfer \"1\"");
}

TEST_F(RegistryKeyTest, ReadsTheDefaultValueByAnEmptyName) {
    pc.value(testKey, "", "default");
    EXPECT_EQ(read(""), "default");
}

TEST_F(RegistryKeyTest, FindsNamesIgnoringCase) {
    pc.value(testKey, "InstallÖrt", "here");
    EXPECT_EQ(readRegistryString("SOFTWARE\\TESTMAKER\\RÖHRE", Hive::localMachine, View::view64, "installört"), "here");
}

TEST_F(RegistryKeyTest, ReadsANumberAsDecimalDigits) {
    pc.number(testKey, "zero", 0);
    pc.number(testKey, "largest", 0xFFFFFFFF);
    EXPECT_EQ(read("zero"), "0");
    EXPECT_EQ(read("largest"), "4294967295");
}

TEST_F(RegistryKeyTest, ReadsEveryOtherTypeAsAQuestionMark) {
    pc.value(testKey, "expand", regExpandSz, storedText("%ProgramFiles%\\X"));
    pc.value(testKey, "multi", regMultiSz, toUtf16("one") + QByteArray(4, '\0'));
    pc.value(testKey, "binary", regBinary, "abc");
    pc.value(testKey, "qword", regQword, QByteArray(8, '\1'));
    EXPECT_EQ(read("expand"), "?");
    EXPECT_EQ(read("multi"), "?");
    EXPECT_EQ(read("binary"), "?");
    EXPECT_EQ(read("qword"), "?");
}

TEST_F(RegistryKeyTest, ReadsLongTextWhole) {
    // 254 characters and their end just fill the first buffer of 510 bytes.
    for (const int length : {253, 254, 255, 256, 300, 40'000}) {
        const QString text(length, u'ä');
        pc.value(testKey, "V", text);
        EXPECT_EQ(read(), text) << length;
    }
}

TEST_F(RegistryKeyTest, ReadsTextOf64KiBAndOf1MiB) {
    for (const int bytes : {64 * 1024, 1024 * 1024}) {
        const QString text = QString(bytes / 2 - 2, u'x') + u'y';
        pc.value(testKey, "V", text);
        EXPECT_EQ(read(), text) << bytes;
        pc.value(testKey, "V", Platform::regSz, toUtf16(text + u'z'));
        EXPECT_EQ(read(), text + u'z') << bytes << " without an end";
        pc.value(testKey, "V", regBinary, QByteArray(bytes, 'x'));
        EXPECT_EQ(read(), "(false)") << bytes;
    }
}

TEST_F(RegistryKeyTest, HalvesOfSurrogatePairsStayAsTheyAre) {
    const QString halves = QString("a") + QChar(0xD800) + "b" + QChar(0xDC00) + "c" + QChar(0xD83D);
    pc.value(testKey, halves, halves);
    EXPECT_EQ(read(halves), halves);
    pc.value({RootKey::LocalMachine, path + '\\' + halves}, "V", "in a key");
    EXPECT_THAT(subKeys(), ElementsAre("before", halves));
    EXPECT_EQ(readRegistryString(path + '\\' + halves, Hive::localMachine, View::view64, "V"), "in a key");
}

TEST_F(RegistryKeyTest, ReadsTextThatLacksItsEnd) {
    for (const int length : {1, 254, 255, 256, 300}) {
        const QString text(length, 'x');
        pc.value(testKey, "V", Platform::regSz, toUtf16(text));
        EXPECT_EQ(read(), text) << length;
    }
}

TEST_F(RegistryKeyTest, ReadsPlainTextAlone) {
    pc.value(testKey, "short", "Röhre");
    pc.value(testKey, "long", QString(300, 'x'));
    pc.value(testKey, "question mark", "?");
    pc.number(testKey, "number", 42);
    pc.value(testKey, "expand", regExpandSz, storedText("%ProgramFiles%\\X"));
    RegistryKey key = open();
    EXPECT_EQ(key.text("short"), "Röhre");
    EXPECT_EQ(key.text("long"), QString(300, 'x'));
    EXPECT_EQ(key.text("question mark"), "?");
    EXPECT_EQ(key.text("number"), "");
    EXPECT_EQ(key.text("expand"), "");
    EXPECT_EQ(key.text("missing"), "");
    EXPECT_EQ(RegistryKey::open(QString("Software\\No such key"), Hive::localMachine, View::view64).text("V"), "");
}

TEST_F(RegistryKeyTest, CutsTextAtItsFirstZero) {
    pc.value(testKey, "short", Platform::regSz, storedText("ab") + storedText("cd"));
    pc.value(testKey, "long", Platform::regSz, storedText("ab") + toUtf16(QString(400, 'c')));
    EXPECT_EQ(read("short"), "ab");
    EXPECT_EQ(read("long"), "ab");
}

TEST_F(RegistryKeyTest, DropsHalfACharacterAtTheEndOfText) {
    pc.value(testKey, "V", Platform::regSz, toUtf16("ab") + 'c');
    EXPECT_EQ(read(), "ab");
}

TEST_F(RegistryKeyTest, ReadsAValueOfNoBytesAsEmptyText) {
    pc.value(testKey, "V", Platform::regSz, QByteArray());
    EXPECT_EQ(read(), "");
}

TEST_F(RegistryKeyTest, DeliversNoLongValueOfAnotherType) {
    pc.value(testKey, "expand", regExpandSz, toUtf16(QString(300, 'x')));
    pc.value(testKey, "binary", regBinary, QByteArray(511, 'x'));
    pc.value(testKey, "fits", regBinary, QByteArray(510, 'x'));
    EXPECT_EQ(read("expand"), "(false)");
    EXPECT_EQ(read("binary"), "(false)");
    EXPECT_EQ(read("fits"), "?");
}

TEST_F(RegistryKeyTest, KeepsTheErrorCodeOfAFailedRead) {
    pc.key(testKey);
    RegistryKey key = open();
    EXPECT_EQ(key.status(), Platform::errorSuccess);
    QString text;
    EXPECT_FALSE(key.readString("missing", text));
    EXPECT_EQ(key.status(), Platform::errorFileNotFound);
}

TEST_F(RegistryKeyTest, AKeyThatDoesNotExistIsNotOpen) {
    RegistryKey key = RegistryKey::open(QString("Software\\No such key"), Hive::localMachine, View::view64);
    EXPECT_FALSE(key.isOpen());
    EXPECT_EQ(key.status(), Platform::errorFileNotFound);

    QString text = "untouched";
    quint32 number = 7;
    QStringList names{"untouched"};
    EXPECT_FALSE(key.readString("V", text));
    EXPECT_FALSE(key.readDword("V", number));
    EXPECT_FALSE(key.subKeyNames(names));
    EXPECT_EQ(text, "untouched");
    EXPECT_EQ(number, 7U);
    EXPECT_THAT(names, ElementsAre("untouched"));
}

TEST_F(RegistryKeyTest, MissingKeysAndValuesReadAsEmptyText) {
    pc.key(testKey);
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, View::view64, "missing"), "");
    EXPECT_EQ(readRegistryString("Software\\No such key", Hive::localMachine, View::view64, "V"), "");
}

TEST_F(RegistryKeyTest, OpensEachRootByItsCode) {
    pc.value({RootKey::LocalMachine, "Software\\TestMaker"}, "V", "machine");
    pc.value({RootKey::CurrentUser, "Software\\TestMaker"}, "V", "user");
    pc.value({RootKey::ClassesRoot, "testmaker"}, "V", "classes");
    pc.value({RootKey::Users, ".DEFAULT\\Software\\TestMaker"}, "V", "users");
    const auto read = [](const char* subKey, quint32 hive) {
        return readRegistryString(subKey, hive, View::view64, "V");
    };
    EXPECT_EQ(read("Software\\TestMaker", 0), "machine");
    EXPECT_EQ(read("Software\\TestMaker", 1), "user");
    EXPECT_EQ(read("testmaker", 2), "classes");
    EXPECT_EQ(read(".DEFAULT\\Software\\TestMaker", 3), "users");
    EXPECT_EQ(read("Software\\TestMaker", 7), "user");
    EXPECT_EQ(read("Software\\TestMaker", 0xFFFFFFFF), "user");
}

TEST_F(RegistryKeyTest, TheMachinesSoftwareDiffersBetweenTheViews) {
    pc.value({RootKey::LocalMachine, path, View::view32}, "V", "32");
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, View::view32, "V"), "32");
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, View::view64, "V"), "");

    pc.value({RootKey::LocalMachine, path, View::view64}, "V", "64");
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, View::view32, "V"), "32");
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, View::view64, "V"), "64");
    EXPECT_EQ(readRegistryString(path, Hive::localMachine, 2, "V"), "32") << "any other flag is the 32-bit view";
    EXPECT_EQ(readRegistryString("Software\\Wow6432Node\\TestMaker\\Röhre", Hive::localMachine, View::view64, "V"),
              "32");
}

TEST_F(RegistryKeyTest, TheUsersSoftwareIsTheSameInBothViews) {
    pc.value({RootKey::CurrentUser, path}, "V", "shared");
    EXPECT_EQ(readRegistryString(path, Hive::currentUser, View::view32, "V"), "shared");
    EXPECT_EQ(readRegistryString(path, Hive::currentUser, View::view64, "V"), "shared");
}

TEST_F(RegistryKeyTest, ClassesAreReadThroughTheirOwnRoot) {
    pc.value({RootKey::ClassesRoot, "testmaker\\Shell\\Open\\Command"}, "", "\"C:\\X\\x.exe\" \"%1\"");
    EXPECT_EQ(readRegistryString("TestMaker\\shell\\open\\command", Hive::classesRoot, View::view64, ""),
              "\"C:\\X\\x.exe\" \"%1\"");
}

TEST_F(RegistryKeyTest, AKeyNameIsExactToTheCharacter) {
    pc.value({RootKey::CurrentUser, "Software\\TestMaker \u0096 X"}, "", "control");
    EXPECT_EQ(readRegistryString("Software\\TestMaker \u0096 X", Hive::currentUser, View::view64, ""), "control");
    EXPECT_EQ(readRegistryString("Software\\TestMaker \u2013 X", Hive::currentUser, View::view64, ""), "");
}

TEST_F(RegistryKeyTest, ReadsAnEntryOfATable) {
    pc.value({RootKey::CurrentUser, path}, "V", "found");
    constexpr RegistrySource present{View::view64, Hive::currentUser, u"Software\\TestMaker\\Röhre", u"V"};
    constexpr RegistrySource absent{View::view64, Hive::localMachine, u"Software\\TestMaker\\Röhre", u"V"};
    EXPECT_EQ(readRegistryString(present), "found");
    EXPECT_EQ(readRegistryString(absent), "");
}

TEST_F(RegistryKeyTest, ListsSubKeysInTheRegistrysOrder) {
    for (const char* name : {"zebra", "Ärger", "Beta", "alpha", "GAMMA"}) {
        pc.key({RootKey::LocalMachine, path + '\\' + name});
    }
    pc.key({RootKey::LocalMachine, path + "\\alpha\\below"});
    EXPECT_THAT(subKeys(), ElementsAre("before", "alpha", "Beta", "GAMMA", "zebra", "Ärger"));
}

TEST_F(RegistryKeyTest, AKeyWithoutSubKeysListsNone) {
    pc.key(testKey);
    EXPECT_THAT(subKeys(), ElementsAre("before"));
}

TEST_F(RegistryKeyTest, ListsTheLongestNameThatTheRegistryHolds) {
    const QString longest(255, 'n');
    pc.key({RootKey::LocalMachine, path + '\\' + longest});
    EXPECT_THAT(subKeys(), ElementsAre("before", longest));
}

TEST_F(RegistryKeyTest, ReadsANumberOfAnyType) {
    pc.number(testKey, "dword", 5);
    pc.value(testKey, "binary", regBinary, littleEndian(0x01020304));
    pc.value(testKey, "text", "1");
    RegistryKey key = RegistryKey::open("Software\\TestMaker", Hive::localMachine, View::view64);
    EXPECT_TRUE(key.isOpen()) << "by the narrow functions";

    RegistryKey wideKey = open();
    quint32 number = 0;
    EXPECT_TRUE(wideKey.readDword("dword", number));
    EXPECT_EQ(number, 5U);
    EXPECT_TRUE(wideKey.readDword("binary", number));
    EXPECT_EQ(number, 0x01020304U);
    number = 0;
    EXPECT_TRUE(wideKey.readDword("text", number));
    EXPECT_EQ(number, quint32('1')) << "the text's bytes in the ANSI code page";
}

TEST_F(RegistryKeyTest, ANumberThatIsNotThereLeavesTheCallersAlone) {
    pc.value(testKey, "long", regQword, QByteArray(8, '\1'));
    pc.value(testKey, "empty", regBinary, QByteArray());
    RegistryKey key = open();
    quint32 number = 9;
    EXPECT_FALSE(key.readDword("missing", number));
    EXPECT_EQ(key.status(), Platform::errorFileNotFound);
    EXPECT_FALSE(key.readDword("long", number));
    EXPECT_EQ(key.status(), Platform::errorMoreData);
    EXPECT_TRUE(key.readDword("empty", number));
    EXPECT_EQ(number, 9U);
}

} // namespace
