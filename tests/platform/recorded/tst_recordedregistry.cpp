#include "platform/Registry.h"
#include "platform/recorded/RegistryQuestions.h"

#include <gmock/gmock.h>

#include <array>
#include <ostream>

namespace {

using namespace RegistryQuestions;
using Platform::ErrorCode;
using Platform::KeyHandle;
using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr ErrorCode errorBadPathName = 161;

/// What a question for a value comes to.
struct Reply {
    ErrorCode result;
    quint32 type;
    quint32 size;
    QByteArray buffer;
};

bool operator==(const Reply& left, const Reply& right) {
    return left.result == right.result && left.type == right.type && left.size == right.size &&
           left.buffer == right.buffer;
}

void PrintTo(const Reply& reply, std::ostream* stream) {
    *stream << "error " << reply.result << ", type " << reply.type << ", size " << reply.size << ", buffer "
            << reply.buffer.toHex(' ').constData();
}

class RecordedRegistryTest : public RecordedRegistry {
protected:
    /// Opens the key of a value "a" that has the given form in a .reg file.
    KeyHandle keyWith(const QByteArray& data) {
        record("[HKEY_LOCAL_MACHINE\\A]\r\n\"a\"=" + data + "\r\n");
        KeyHandle key;
        EXPECT_EQ(Platform::openKey(RootKey::LocalMachine, "A", view64, key), Platform::errorSuccess);
        return key;
    }

    /// Asks for the value, with what the buffer has before.
    static Reply query(const KeyHandle& key, QByteArray buffer) {
        quint32 type = 99;
        auto size = static_cast<quint32>(buffer.size());
        const ErrorCode result = Platform::queryValue(key, "a", type, buffer.data(), size);
        return {result, type, size, buffer};
    }

    /// The same by the functions for the ANSI code page.
    static Reply queryNarrow(const KeyHandle& key, const char* name, QByteArray buffer) {
        quint32 type = 99;
        auto size = static_cast<quint32>(buffer.size());
        const ErrorCode result = Platform::queryValueNarrow(key, name, type, buffer.data(), size);
        return {result, type, size, buffer};
    }
};

TEST_F(RecordedRegistryTest, FindsAValueInItsRootOnly) {
    record("[HKEY_LOCAL_MACHINE\\A]\r\n\"a\"=\"1\"\r\n");
    EXPECT_EQ(text(RootKey::LocalMachine, "A", "a"), "1");
    EXPECT_EQ(text(RootKey::CurrentUser, "A", "a"), "error 2");
    EXPECT_EQ(text(RootKey::ClassesRoot, "A", "a"), "error 2");
    EXPECT_EQ(text(RootKey::Users, "A", "a"), "error 2");
    EXPECT_EQ(text(RootKey::LocalMachine, "A", "b"), "error 2");
}

TEST_F(RecordedRegistryTest, FindsNamesIgnoringCaseAsWindowsDoes) {
    record("[HKEY_CURRENT_USER\\Spiele\\Größe ς]\r\n\"Münze µ\"=\"1\"\r\n");
    EXPECT_EQ(text(RootKey::CurrentUser, "SPIELE\\gRÖßE Σ", "MÜNZE µ"), "1");
    EXPECT_EQ(text(RootKey::CurrentUser, "SPIELE\\GRÖSSE Σ", "MÜNZE µ"), "error 2");
    EXPECT_EQ(text(RootKey::CurrentUser, "Spiele\\Größe ς", "münze Μ"), "error 2") << "the micro sign is no mu";
}

TEST_F(RecordedRegistryTest, KeepsDotlessIAndLongSApart) {
    record("[HKEY_CURRENT_USER\\ı]\r\n[HKEY_CURRENT_USER\\ſ]\r\n");
    EXPECT_EQ(open(RootKey::CurrentUser, "I"), Platform::errorFileNotFound);
    EXPECT_EQ(open(RootKey::CurrentUser, "S"), Platform::errorFileNotFound);
}

TEST_F(RecordedRegistryTest, ListsSubKeysSortedAndAsTheyAreSpelled) {
    record("[HKEY_CURRENT_USER\\K\\b]\r\n[HKEY_CURRENT_USER\\K\\_]\r\n[HKEY_CURRENT_USER\\K\\C]\r\n"
           "[HKEY_CURRENT_USER\\K\\ä]\r\n[HKEY_CURRENT_USER\\K\\A\\deeper]\r\n[HKEY_CURRENT_USER\\K\\B]\r\n");
    EXPECT_THAT(subKeys(RootKey::CurrentUser, "K"), ElementsAre("A", "b", "C", "_", "ä"));
}

TEST_F(RecordedRegistryTest, LaterLinesWinAndDeletionsDelete) {
    record(
        "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n\"b\"=\"1\"\r\n\"c\"=\"1\"\r\n[HKEY_CURRENT_USER\\A\\B]\r\n"
        "[HKEY_CURRENT_USER\\C\\D]\r\n[HKEY_CURRENT_USER\\a]\r\n\"A\"=\"2\"\r\n\"B\"=-\r\n[-HKEY_CURRENT_USER\\C]\r\n"
        "[-HKEY_CURRENT_USER\\none\\at all]\r\n");
    EXPECT_EQ(text(RootKey::CurrentUser, "A", "a"), "2");
    EXPECT_EQ(text(RootKey::CurrentUser, "A", "b"), "error 2");
    EXPECT_EQ(text(RootKey::CurrentUser, "A", "c"), "1");
    EXPECT_EQ(open(RootKey::CurrentUser, "C\\D"), Platform::errorFileNotFound);
    EXPECT_EQ(open(RootKey::CurrentUser, "C"), Platform::errorFileNotFound);
    EXPECT_THAT(subKeys(RootKey::CurrentUser, "A"), ElementsAre("B"));
}

TEST_F(RecordedRegistryTest, ReadsFilesInTheOrderOfTheirNames) {
    const QByteArray header = "Windows Registry Editor Version 5.00\r\n[HKEY_CURRENT_USER\\A]\r\n";
    pc.file("registry/b.reg", header + "\"a\"=\"b\"\r\n");
    pc.file("registry/a.REG", header + "\"a\"=\"a\"\r\n");
    pc.file("registry/c.reg.txt", header + "\"a\"=\"c\"\r\n");
    pc.choose();
    EXPECT_EQ(text(RootKey::CurrentUser, "A", "a"), "b");
}

// Opening

TEST_F(RecordedRegistryTest, OpensARootByAnEmptyName) {
    record("[HKEY_USERS\\S-1-5-18]\r\n");
    EXPECT_THAT(subKeys(RootKey::Users, ""), ElementsAre("S-1-5-18"));
    EXPECT_THAT(subKeys(RootKey::LocalMachine, ""), IsEmpty());
    EXPECT_THAT(subKeys(RootKey::ClassesRoot, ""), IsEmpty());
}

TEST_F(RecordedRegistryTest, TakesBackslashesAsWindowsDoes) {
    record("[HKEY_CURRENT_USER\\A\\B]\r\n[HKEY_CLASSES_ROOT\\A]\r\n");
    EXPECT_EQ(open(RootKey::CurrentUser, "A\\B\\"), Platform::errorSuccess);
    EXPECT_EQ(open(RootKey::CurrentUser, "A\\\\B"), Platform::errorSuccess);
    EXPECT_EQ(open(RootKey::ClassesRoot, "\\A"), Platform::errorSuccess);
    EXPECT_EQ(open(RootKey::CurrentUser, "\\A\\B"), errorBadPathName);
    EXPECT_EQ(open(RootKey::CurrentUser, "A/B"), Platform::errorFileNotFound);
}

TEST_F(RecordedRegistryTest, EndsNamesAtANull) {
    record("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n");
    EXPECT_EQ(text(RootKey::CurrentUser, QString("A") + QChar(0) + "B", QString("a") + QChar(0) + "b"), "1");
}

TEST_F(RecordedRegistryTest, OpensByAsciiNames) {
    record("[HKEY_CURRENT_USER\\A\\B]\r\n");
    KeyHandle key;
    EXPECT_EQ(Platform::openKeyNarrow(RootKey::CurrentUser, "a\\b", view64, key), Platform::errorSuccess);
    EXPECT_EQ(Platform::openKeyNarrow(RootKey::CurrentUser, "a\\c", view64, key), Platform::errorFileNotFound);
    EXPECT_FALSE(key);
    EXPECT_EQ(Platform::openKeyNarrow(RootKey::CurrentUser, nullptr, view64, key), Platform::errorSuccess);
}

TEST_F(RecordedRegistryTest, KeepsAnOpenKeyWhenAnotherPcIsChosen) {
    const KeyHandle key = keyWith("dword:00000007");
    RecordingFolder other;
    other.choose();
    EXPECT_EQ(query(key, "xxxx"), (Reply{Platform::errorSuccess, Platform::regDword, 4, QByteArray("\7\0\0\0", 4)}));
}

// Values

TEST_F(RecordedRegistryTest, TellsTheSizeOfAValueWithoutABuffer) {
    const KeyHandle key = keyWith("\"abc\"");
    quint32 type = 99;
    quint32 size = 0;
    EXPECT_EQ(Platform::queryValue(key, "a", type, nullptr, size), Platform::errorSuccess);
    EXPECT_EQ(size, 8U);
    EXPECT_EQ(type, Platform::regSz);
}

TEST_F(RecordedRegistryTest, LeavesABufferAloneThatIsTooSmallOrForAValueOfNoBytes) {
    EXPECT_EQ(query(keyWith("\"abc\""), "1234567"), (Reply{Platform::errorMoreData, Platform::regSz, 8, "1234567"}));
    EXPECT_EQ(query(keyWith("hex(1):"), "1234"), (Reply{Platform::errorSuccess, Platform::regSz, 0, "1234"}));
}

TEST_F(RecordedRegistryTest, EndsTextThatIsStoredWithoutAnEnd) {
    const KeyHandle key = keyWith("hex(1):41,00,42,00");
    EXPECT_EQ(query(key, "xxxxxxxx"),
              (Reply{Platform::errorSuccess, Platform::regSz, 4, QByteArray("A\0B\0\0\0xx", 8)}));
    EXPECT_EQ(query(key, "xxxxx"), (Reply{Platform::errorSuccess, Platform::regSz, 4, QByteArray("A\0B\0x", 5)}))
        << "there is no room for an end";
}

TEST_F(RecordedRegistryTest, GivesBytesOfOtherTypesAsTheyAre) {
    EXPECT_EQ(query(keyWith("hex(3):01,02"), "xxxx"), (Reply{Platform::errorSuccess, 3, 2, "\x01\x02xx"}));
}

TEST_F(RecordedRegistryTest, ConvertsTextToTheAnsiCodePage) {
    const KeyHandle key = keyWith("\"Ö€–Ł𝄞\"");
    EXPECT_EQ(queryNarrow(key, "a", "xxxxxxxxxx"),
              (Reply{Platform::errorSuccess, Platform::regSz, 7, QByteArray("\xD6\x80\x96???\0xxx", 10)}));
    EXPECT_EQ(queryNarrow(key, "a", "xxxxxx"), (Reply{Platform::errorMoreData, Platform::regSz, 7, "xxxxxx"}));
}

TEST_F(RecordedRegistryTest, ConvertsTextToTheCodePageThatThePcHas) {
    pc.describe(R"({"codePage": 1250})");
    EXPECT_EQ(queryNarrow(keyWith("\"ŁÖ\""), "a", "xxx"),
              (Reply{Platform::errorSuccess, Platform::regSz, 3, QByteArray("\xA3\xD6\0", 3)}));
}

TEST_F(RecordedRegistryTest, GivesNumbersByAsciiNames) {
    const KeyHandle key = keyWith("dword:01020304");
    EXPECT_EQ(queryNarrow(key, "A", "xxxx"), (Reply{Platform::errorSuccess, Platform::regDword, 4, "\4\3\2\1"}));
    EXPECT_EQ(queryNarrow(key, nullptr, "xxxx").result, Platform::errorFileNotFound);
}

TEST_F(RecordedRegistryTest, RefusesAKeyThatIsNotOpen) {
    char16_t name[4];
    quint32 length = 4;
    EXPECT_EQ(query({}, "x").result, Platform::errorInvalidHandle);
    EXPECT_EQ(queryNarrow({}, "a", "x").result, Platform::errorInvalidHandle);
    EXPECT_EQ(Platform::enumKey({}, 0, name, length), Platform::errorInvalidHandle);
}

// Enumeration

TEST_F(RecordedRegistryTest, NeedsRoomForANameAndItsEnd) {
    record("[HKEY_CURRENT_USER\\K\\abc]\r\n");
    KeyHandle key;
    ASSERT_EQ(Platform::openKey(RootKey::CurrentUser, "K", view64, key), Platform::errorSuccess);
    char16_t name[] = u"xxxxx";
    quint32 length = 3;
    EXPECT_EQ(Platform::enumKey(key, 0, name, length), Platform::errorMoreData);
    EXPECT_EQ(QString::fromUtf16(name), "xxxxx");
    length = 4;
    EXPECT_EQ(Platform::enumKey(key, 0, name, length), Platform::errorSuccess);
    EXPECT_EQ(QString::fromUtf16(name), "abc");
    EXPECT_EQ(length, 3U);
    EXPECT_EQ(Platform::enumKey(key, 1, name, length), Platform::errorNoMoreItems);
}

TEST_F(RecordedRegistryTest, GoesOnBehindANameThatIsTooLong) {
    record("[HKEY_CURRENT_USER\\K\\" + QByteArray(300, 'b') + "]\r\n[HKEY_CURRENT_USER\\K\\c]\r\n");
    KeyHandle key;
    ASSERT_EQ(Platform::openKey(RootKey::CurrentUser, "K", view64, key), Platform::errorSuccess);
    std::array<char16_t, 256> name{};
    quint32 length = 256;
    EXPECT_EQ(Platform::enumKey(key, 0, name.data(), length), Platform::errorMoreData);
    length = 256;
    EXPECT_EQ(Platform::enumKey(key, 1, name.data(), length), Platform::errorSuccess);
    EXPECT_EQ(length, 1U);
}

TEST_F(RecordedRegistryTest, ReadsManyKeysInReasonableTime) {
    QByteArray lines;
    for (int i = 20000; i > 0; --i) {
        lines += "[HKEY_CURRENT_USER\\K\\" + QByteArray::number(i) + "]\r\n";
    }
    record(lines);
    EXPECT_EQ(subKeys(RootKey::CurrentUser, "K").size(), 20000U);
}

} // namespace
