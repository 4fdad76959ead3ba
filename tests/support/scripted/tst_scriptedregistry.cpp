#include "support/RegistryKey.h"

#include "common/QtPrinters.h"
#include "support/scripted/ScriptedSystem.h"

#include <gmock/gmock.h>

#include <cstring>
#include <utility>
#include <vector>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;

constexpr quint32 regBinary = 3;
constexpr Platform::ErrorCode errorAccessDenied = 5;

/// An answer to one question for a value: the result, the size that Windows tells, and what it writes to the buffer.
struct Answer {
    Platform::ErrorCode result = Platform::errorSuccess;
    quint32 type = Platform::regSz;
    quint32 size = 0;
    QString text;
};

class ScriptedRegistryTest : public ::testing::Test {
protected:
    ScriptedRegistryTest() {
        system.openKey = [](RootKey, const QString&, quint32) { return Platform::errorSuccess; };
    }

    /// The value gives these answers, one a question.
    void answer(const std::vector<Answer>& answers) {
        system.queryValue = [this, answers](const QString& name, quint32& type, void* data, quint32& size) {
            EXPECT_EQ(name, "V");
            EXPECT_LT(bufferSizes.size(), answers.size()) << "asked too often";
            const Answer& given = answers.at(bufferSizes.size());
            const auto bytes = static_cast<quint32>(given.text.size()) * 2;
            EXPECT_LE(bytes, size);
            bufferSizes.push_back(size);
            std::memcpy(data, given.text.utf16(), bytes);
            type = given.type;
            size = given.size;
            return given.result;
        };
    }

    static RegistryKey opened() { return RegistryKey::open(QString("Software\\X"), Hive::localMachine, View::view64); }

    /// What readString gives, or "error N".
    static QString read() {
        RegistryKey key = opened();
        QString text = "untouched";
        if (!key.readString("V", text)) {
            EXPECT_EQ(text, "untouched");
            return QString("error %1").arg(key.status());
        }
        EXPECT_EQ(key.status(), Platform::errorSuccess);
        return text;
    }

    ScriptedSystem system;
    std::vector<quint32> bufferSizes;
};

TEST_F(ScriptedRegistryTest, OpensTheRootOfItsCodeInTheViewOfItsFlag) {
    std::vector<std::pair<RootKey, quint32>> asked;
    system.openKey = system.openKeyNarrow = [&asked](RootKey root, const QString& subKey, quint32 access) {
        EXPECT_EQ(subKey, "Software\\X");
        asked.emplace_back(root, access);
        return Platform::errorSuccess;
    };
    const std::vector<std::pair<quint32, RootKey>> roots{
        {0, RootKey::LocalMachine}, {1, RootKey::CurrentUser}, {2, RootKey::ClassesRoot},
        {3, RootKey::Users},        {4, RootKey::CurrentUser}, {0xFFFFFFFF, RootKey::CurrentUser}};
    for (const auto& [hive, root] : roots) {
        asked.clear();
        EXPECT_TRUE(RegistryKey::open(QString("Software\\X"), hive, 0).isOpen());
        EXPECT_TRUE(RegistryKey::open("Software\\X", hive, 1).isOpen());
        EXPECT_TRUE(RegistryKey::open("Software\\X", hive, 2).isOpen());
        EXPECT_THAT(asked, ElementsAre(std::pair(root, 0x20119U), std::pair(root, 0x20219U), std::pair(root, 0x20219U)))
            << hive;
    }
}

TEST_F(ScriptedRegistryTest, ClosesWhatItOpened) {
    {
        const RegistryKey key = opened();
        EXPECT_EQ(system.openKeys, 1);
    }
    EXPECT_EQ(system.openKeys, 0);
    answer({{Platform::errorSuccess, Platform::regSz, 4, "ab"}});
    EXPECT_EQ(readRegistryString("Software\\X", Hive::localMachine, View::view64, "V"), "ab");
    EXPECT_EQ(system.openKeys, 0);
}

TEST_F(ScriptedRegistryTest, KeepsTheErrorOfOpening) {
    system.openKey = [](RootKey, const QString&, quint32) { return errorAccessDenied; };
    system.openKeyNarrow = [](RootKey, const QString&, quint32) { return Platform::errorInvalidHandle; };
    EXPECT_EQ(opened().status(), errorAccessDenied);
    EXPECT_EQ(RegistryKey::open("Software\\X", Hive::localMachine, View::view64).status(),
              Platform::errorInvalidHandle);
    EXPECT_EQ(system.openKeys, 0);
}

TEST_F(ScriptedRegistryTest, AsksForTextIn510Bytes) {
    answer({{Platform::errorSuccess, Platform::regSz, 510, QString(255, 'x')}});
    EXPECT_EQ(read(), QString(255, 'x'));
    EXPECT_THAT(bufferSizes, ElementsAre(510U));
}

TEST_F(ScriptedRegistryTest, AsksForLongTextAgainWithRoomForItsEnd) {
    const QString text(300, 'x');
    answer({{Platform::errorMoreData, Platform::regSz, 600, {}}, {Platform::errorSuccess, Platform::regSz, 600, text}});
    EXPECT_EQ(read(), text);
    EXPECT_THAT(bufferSizes, ElementsAre(510U, 602U));
}

TEST_F(ScriptedRegistryTest, AsksForHalfACharacterMoreThanFitsWithRoomForItsEnd) {
    answer({{Platform::errorMoreData, Platform::regSz, 511, {}},
            {Platform::errorSuccess, Platform::regSz, 511, QString(255, 'x')}});
    EXPECT_EQ(read(), QString(255, 'x'));
    EXPECT_THAT(bufferSizes, ElementsAre(510U, 512U));
}

TEST_F(ScriptedRegistryTest, LongTextThatFillsItsBufferLosesItsLastCharacterToTheEnd) {
    answer({{Platform::errorMoreData, Platform::regSz, 600, {}},
            {Platform::errorSuccess, Platform::regSz, 602, QString(301, 'x')}});
    EXPECT_EQ(read(), QString(300, 'x'));
}

TEST_F(ScriptedRegistryTest, LongTextThatShrankEndsAtItsFirstZero) {
    answer({{Platform::errorMoreData, Platform::regSz, 600, {}}, {Platform::errorSuccess, Platform::regSz, 4, "ab"}});
    EXPECT_EQ(read(), "ab");
}

TEST_F(ScriptedRegistryTest, LongTextThatGrewBetweenTheQuestionsIsNotRead) {
    answer({{Platform::errorMoreData, Platform::regSz, 600, {}},
            {Platform::errorMoreData, Platform::regSz, 800, QString(301, 'x')}});
    EXPECT_EQ(read(), "error 234");
    EXPECT_THAT(bufferSizes, ElementsAre(510U, 602U)) << "asked no third time";
}

TEST_F(ScriptedRegistryTest, LongTextThatWentBetweenTheQuestionsIsNotRead) {
    answer({{Platform::errorMoreData, Platform::regSz, 600, {}}, {Platform::errorFileNotFound, 0, 0, {}}});
    EXPECT_EQ(read(), "error 2");
    bufferSizes.clear();
    EXPECT_EQ(opened().text("V"), "");
}

TEST_F(ScriptedRegistryTest, ALongValueOfAnotherTypeIsNotAskedForAgain) {
    for (const quint32 type : {0U, 2U, regBinary, Platform::regDword, 7U}) {
        bufferSizes.clear();
        answer({{Platform::errorMoreData, type, 600, {}}});
        EXPECT_EQ(read(), "error 234") << type;
        EXPECT_THAT(bufferSizes, ElementsAre(510U));
    }
}

TEST_F(ScriptedRegistryTest, AnyOtherErrorIsKept) {
    answer({{errorAccessDenied, Platform::regSz, 4, "ab"}});
    EXPECT_EQ(read(), "error 5");
}

TEST_F(ScriptedRegistryTest, ANumberOfFewerBytesHasZerosAboveThem) {
    answer({{Platform::errorSuccess, Platform::regDword, 2, QChar(0x0201)}});
    EXPECT_EQ(read(), "513");
}

TEST_F(ScriptedRegistryTest, ANumberThatIsTooLongLeavesTheCallersAloneWhateverItLeavesInTheBuffer) {
    system.queryValueNarrow = [](const QString&, quint32&, void* data, quint32& size) {
        std::memset(data, 0xAB, size);
        return Platform::errorMoreData;
    };
    RegistryKey key = opened();
    quint32 number = 9;
    EXPECT_FALSE(key.readDword("V", number));
    EXPECT_EQ(number, 9U);
    EXPECT_EQ(key.status(), Platform::errorMoreData);
}

class ScriptedSubKeysTest : public ScriptedRegistryTest {
protected:
    /// The key has sub-keys of these names; one that is empty can't be told.
    void have(const QStringList& subKeys) {
        system.enumKey = [this, subKeys](quint32 index, char16_t* buffer, quint32& length) {
            indexes.push_back(index);
            EXPECT_EQ(length, 256U);
            if (index >= static_cast<quint32>(subKeys.size())) {
                return Platform::errorNoMoreItems;
            }
            const QString& name = subKeys.at(static_cast<int>(index));
            if (name.isEmpty()) {
                return errorAccessDenied;
            }
            if (static_cast<quint32>(name.size()) >= length) {
                return Platform::errorMoreData;
            }
            length = static_cast<quint32>(name.size());
            std::memcpy(buffer, name.utf16(), (length + 1) * sizeof(char16_t));
            return Platform::errorSuccess;
        };
    }

    std::vector<quint32> indexes;
    QStringList names{"before"};
};

TEST_F(ScriptedSubKeysTest, ANameThatIsTooLongIsSkippedAndTheOnesAfterItAreListed) {
    const QString longest(255, 'n');
    have({"a", QString(300, 'n'), "b", QString(256, 'n'), longest});
    RegistryKey key = opened();
    EXPECT_TRUE(key.subKeyNames(names));
    EXPECT_THAT(names, ElementsAre("before", "a", "b", longest));
    EXPECT_EQ(key.status(), Platform::errorSuccess);
    EXPECT_THAT(indexes, ElementsAre(0U, 1U, 2U, 3U, 4U, 5U));
}

TEST_F(ScriptedSubKeysTest, AnErrorOnTheWayKeepsTheNamesBeforeIt) {
    have({"a", "", "b"});
    RegistryKey key = opened();
    EXPECT_TRUE(key.subKeyNames(names));
    EXPECT_THAT(names, ElementsAre("before", "a"));
    EXPECT_EQ(key.status(), errorAccessDenied);
    EXPECT_THAT(indexes, ElementsAre(0U, 1U));
}

TEST_F(ScriptedSubKeysTest, ANameIsAsLongAsTheRegistrySays) {
    have({QString::fromUtf8("a\0b", 3)});
    RegistryKey key = opened();
    EXPECT_TRUE(key.subKeyNames(names));
    EXPECT_THAT(names, ElementsAre("before", QString::fromUtf8("a\0b", 3)));
}

} // namespace
