#include "recordings/RegFile.h"

#include "common/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using Recordings::RegFile;
using Recordings::RegKey;
using Recordings::RegValue;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray header = "Windows Registry Editor Version 5.00\r\n";

QByteArray utf16(const QString& text) {
    return {reinterpret_cast<const char*>(text.utf16()), text.size() * 2};
}

QByteArray stored(const QString& text) {
    return utf16(text) + QByteArray(2, '\0');
}

RegFile parse(const QByteArray& bytes) {
    return Recordings::parseRegFile(bytes, "test.reg");
}

/// The file of a header and, from line 2 on, `lines`.
RegFile read(const QByteArray& lines) {
    return parse(header + lines);
}

std::vector<QString> problems(const RegFile& file) {
    std::vector<QString> texts;
    for (const Recordings::Problem& problem : file.problems) {
        EXPECT_EQ(problem.file, "test.reg");
        texts.push_back(QString("%1: %2").arg(problem.line).arg(problem.message));
    }
    return texts;
}

std::vector<QString> names(const RegFile& file) {
    std::vector<QString> texts;
    for (const RegKey& key : file.keys) {
        for (const RegValue& value : key.values) {
            texts.push_back(value.name);
        }
    }
    return texts;
}

/// The one value below a key.
RegValue value(const QByteArray& line) {
    const RegFile file = read("[HKEY_LOCAL_MACHINE\\A]\r\n" + line);
    EXPECT_THAT(problems(file), IsEmpty());
    return file.keys.empty() || file.keys[0].values.size() != 1 ? RegValue{"(not one)", false, 0, {}}
                                                                : file.keys[0].values[0];
}

/// The one fault of a value in line 3, between two values that are read all the same.
QString fault(const QByteArray& line) {
    const RegFile file =
        read("[HKEY_LOCAL_MACHINE\\A]\r\n" + line + "\r\n\"after\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n@=\"2\"\r\n");
    EXPECT_THAT(names(file), ElementsAre("after", ""));
    EXPECT_EQ(file.problems.size(), 1U);
    return problems(file).empty() ? QString() : problems(file).front();
}

TEST(RegFileTest, ReadsKeysOfEveryRoot) {
    const RegFile file =
        read("[HKEY_LOCAL_MACHINE\\SOFTWARE\\X]\r\n[HKEY_CURRENT_USER\\X]\r\n[HKEY_CLASSES_ROOT\\X]\r\n"
             "[HKEY_USERS\\X]\r\n[hkey_local_machine]\r\n");
    EXPECT_THAT(problems(file), IsEmpty());
    ASSERT_EQ(file.keys.size(), 5U);
    EXPECT_EQ(file.keys[0].root, RegKey::Root::LocalMachine);
    EXPECT_EQ(file.keys[0].path, "SOFTWARE\\X");
    EXPECT_EQ(file.keys[1].root, RegKey::Root::CurrentUser);
    EXPECT_EQ(file.keys[2].root, RegKey::Root::ClassesRoot);
    EXPECT_EQ(file.keys[3].root, RegKey::Root::Users);
    EXPECT_EQ(file.keys[4].path, "");
}

TEST(RegFileTest, ReadsAString) {
    const RegValue read = value("\"Name\"=\"C:\\\\Games\\\\\\\"X\\\"\"\r\n");
    EXPECT_EQ(read.name, "Name");
    EXPECT_EQ(read.type, 1U);
    EXPECT_EQ(read.data, stored("C:\\Games\\\"X\""));
}

TEST(RegFileTest, ReadsANameWithEscapes) {
    EXPECT_EQ(value("\"C:\\\\a=\\\"b\\\"\"=\"1\"").name, "C:\\a=\"b\"");
}

TEST(RegFileTest, ReadsTheDefaultValue) {
    EXPECT_EQ(value("@=\"x\"").name, "");
}

TEST(RegFileTest, ReadsAStringOfSeveralLinesAsRegeditWritesIt) {
    EXPECT_EQ(value("\"a\"=\"one\r\n[two]\r\nthree\"\r\n").data, stored("one\r\n[two]\r\nthree"));
    EXPECT_EQ(value("\"a\"=\"one\r\n\"\r\n").data, stored("one\r\n"));
}

TEST(RegFileTest, ReadsADword) {
    EXPECT_EQ(value("\"a\"=dword:0000002a").data, QByteArray("\x2a\0\0\0", 4));
    EXPECT_EQ(value("\"a\"=dword:FFFFFFFE").data, "\xfe\xff\xff\xff");
    EXPECT_EQ(value("\"a\"=dword:1").type, 4U);
}

TEST(RegFileTest, ReadsBytesOfEveryType) {
    EXPECT_EQ(value("\"a\"=hex:01,fF,0").data, QByteArray("\x01\xff\0", 3));
    EXPECT_EQ(value("\"a\"=hex:01").type, 3U);
    EXPECT_EQ(value("\"a\"=hex(2):25,00,00,00").type, 2U);
    EXPECT_EQ(value("\"a\"=hex(b):01,00,00,00,00,00,00,00").type, 11U);
    EXPECT_EQ(value("\"a\"=hex(ffff0010):").type, 0xffff0010U);
    EXPECT_EQ(value("\"a\"=hex(1):41,00").data, QByteArray("A\0", 2)) << "a string without its end can be planted";
    EXPECT_EQ(value("\"a\"=hex(7):").data, "");
}

TEST(RegFileTest, ReadsBytesOnSeveralLines) {
    EXPECT_EQ(value("\"a\"=hex:01,\\\r\n  02,03,\\ \r\n  04\r\n").data, "\x01\x02\x03\x04");
    EXPECT_EQ(value("\"a\"=hex(2):\\\r\n  41,00\r\n").data, QByteArray("A\0", 2));
}

TEST(RegFileTest, ReadsDeletions) {
    const RegFile file = read("[-HKEY_CURRENT_USER\\A]\r\n\"ignored\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n\"a\"=-\r\n");
    EXPECT_THAT(problems(file), IsEmpty());
    ASSERT_EQ(file.keys.size(), 2U);
    EXPECT_TRUE(file.keys[0].isErased);
    EXPECT_THAT(file.keys[0].values, IsEmpty());
    ASSERT_EQ(file.keys[1].values.size(), 1U);
    EXPECT_TRUE(file.keys[1].values[0].isErased);
}

TEST(RegFileTest, SkipsCommentsAndBlankLines) {
    const RegFile file =
        read("; one\r\n\r\n  ; two\r\n[HKEY_CURRENT_USER\\A] ; three\r\n  \"a\"=dword:1 ; four\r\n\t\r\n");
    EXPECT_THAT(problems(file), IsEmpty());
    EXPECT_THAT(names(file), ElementsAre("a"));
}

TEST(RegFileTest, ReadsEveryEncodingAndLineEnd) {
    const QString text = "Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\Äpfel]\n\"ü€𝄞\"=\"ß\"";
    QString withReturns = text;
    withReturns.replace("\n", "\r\n");
    const std::vector<QByteArray> files = {text.toUtf8(), withReturns.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(),
                                           "\xFF\xFE" + utf16(text), "\xFF\xFE" + utf16(withReturns)};
    for (const QByteArray& bytes : files) {
        const RegFile file = parse(bytes);
        EXPECT_THAT(problems(file), IsEmpty());
        EXPECT_THAT(names(file), ElementsAre("ü€𝄞"));
        EXPECT_EQ(file.keys.at(0).path, "Äpfel");
    }
}

TEST(RegFileTest, ReadsAHeaderAlone) {
    EXPECT_THAT(problems(parse("Windows Registry Editor Version 5.00")), IsEmpty());
}

TEST(RegFileTest, IgnoresRootsThatNobodyAsksFor) {
    const RegFile file = read("[HKEY_CURRENT_CONFIG\\Software]\r\n\"a\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), IsEmpty());
    EXPECT_THAT(names(file), IsEmpty());
}

// One test for each way in which a file can be wrong.

TEST(RegFileTest, ReportsAMissingHeader) {
    const RegFile file = parse("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("1: the first line is not \"Windows Registry Editor Version 5.00\""));
    EXPECT_THAT(file.keys, IsEmpty()) << "regedit doesn't import it either";
}

TEST(RegFileTest, ReportsTheOldFormatAndAnEmptyFile) {
    EXPECT_EQ(parse("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n").problems.size(), 1U);
    EXPECT_EQ(parse("").problems.size(), 1U);
}

TEST(RegFileTest, ReportsAStringThatIsNotClosed) {
    EXPECT_EQ(fault("\"a\"=\"open"), "3: the string is not closed");
    EXPECT_EQ(fault("\"a\"=\"C:\\\\Games\\\""), "3: the string is not closed");
}

TEST(RegFileTest, ReportsAStringThatIsNotClosedBeforeAKey) {
    const RegFile file =
        read("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"open\r\nstill\r\n[HKEY_CURRENT_USER\\B]\r\n\"b\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("3: the string is not closed"));
    EXPECT_THAT(names(file), ElementsAre("b"));
}

TEST(RegFileTest, ReportsAStringThatIsNotClosedAtTheEnd) {
    const RegFile file = read("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n\"b\"=\"open\r\nmore\r\n");
    EXPECT_THAT(problems(file), ElementsAre("4: the string is not closed"));
    EXPECT_THAT(names(file), ElementsAre("a"));
}

TEST(RegFileTest, ReportsANameThatIsNotClosed) {
    EXPECT_EQ(fault("\"a=\\\"1\\\""), "3: the string is not closed");
}

TEST(RegFileTest, ReportsABackslashThatIsNotDoubled) {
    EXPECT_EQ(fault("\"a\"=\"C:\\Games\""), "3: a backslash in a string must be doubled");
}

TEST(RegFileTest, ReportsSomethingBehindAValue) {
    EXPECT_EQ(fault("\"a\"=\"1\" 2"), "3: something follows the value in its line");
    EXPECT_EQ(fault("\"a\"=hex:01 02"), "3: something follows the value in its line");
}

TEST(RegFileTest, ReportsANameWithoutAValue) {
    EXPECT_EQ(fault("\"a\""), "3: \"=\" is expected after the name of a value");
    EXPECT_EQ(fault("\"a\"="), "3: a string, \"dword:\", \"hex:\", \"hex(…):\" or \"-\" is expected");
    EXPECT_EQ(fault("\"a\"=word"), "3: a string, \"dword:\", \"hex:\", \"hex(…):\" or \"-\" is expected");
}

TEST(RegFileTest, ReportsALineThatIsNothing) {
    EXPECT_EQ(fault("garbage"), "3: the line is neither a key nor a value");
}

TEST(RegFileTest, ReportsABadDword) {
    EXPECT_EQ(fault("\"a\"=dword:"), "3: 1 to 8 hexadecimal digits are expected");
    EXPECT_EQ(fault("\"a\"=dword:123456789"), "3: 1 to 8 hexadecimal digits are expected");
}

TEST(RegFileTest, ReportsABadType) {
    EXPECT_EQ(fault("\"a\"=hex(2:41"), "3: \"):\" is expected after the type");
}

TEST(RegFileTest, ReportsBadBytesAtTheirLine) {
    EXPECT_EQ(fault("\"a\"=hex:01,xy"), "3: a byte in hexadecimal digits is expected");
    EXPECT_EQ(fault("\"a\"=hex:01,\\\r\n  02,xy,\\\r\n  03,\\\r\n  04"), "4: a byte in hexadecimal digits is expected");
    EXPECT_EQ(fault("\"a\"=hex:01,"), "3: a byte in hexadecimal digits is expected");
}

TEST(RegFileTest, ReportsBytesThatAreNotContinued) {
    EXPECT_EQ(fault("\"a\"=hex:01,\\"), "3: the list of bytes is not continued");
    EXPECT_EQ(fault("\"a\"=hex:01,\\\r\n"), "3: the list of bytes is not continued");
    EXPECT_EQ(fault("\"a\"=hex:01,\\ 02"), "3: a line break is expected after the backslash");
}

TEST(RegFileTest, ReportsAKeyThatIsNotClosedAndLeavesItsValuesOut) {
    const RegFile file = read("[HKEY_CURRENT_USER\\A\r\n\"a\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n\"b\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("2: the key name is not closed"));
    EXPECT_THAT(names(file), ElementsAre("b"));
}

TEST(RegFileTest, ReportsAnUnknownRoot) {
    const RegFile file = read("[HKLM\\A]\r\n\"a\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("2: \"HKLM\" is no root key, such as HKEY_LOCAL_MACHINE"));
    EXPECT_THAT(names(file), IsEmpty());
}

TEST(RegFileTest, ReportsAKeyThatIsDeeperThanWindowsAllows) {
    EXPECT_THAT(problems(read("[HKEY_CURRENT_USER" + QByteArray("\\a").repeated(512) + "]")),
                ElementsAre("2: the key is more than 512 levels deep"));
}

TEST(RegFileTest, ReportsAValueBeforeTheFirstKey) {
    EXPECT_THAT(problems(read("\"a\"=\"1\"")), ElementsAre("2: the value stands before the first key"));
}

TEST(RegFileTest, ReportsALineThatIsNotUtf8) {
    const RegFile file = read("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"\xE4\"\r\n\"b\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("3: the line is not UTF-8"));
    EXPECT_THAT(names(file), ElementsAre("a", "b"));
}

TEST(RegFileTest, ReportsAFileThatIsCutInAUnit) {
    const RegFile file = parse("\xFF\xFE" + utf16(header + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n") + "[");
    EXPECT_THAT(problems(file), ElementsAre("4: the file is cut in the middle of a character"));
    EXPECT_THAT(names(file), ElementsAre("a"));
}

TEST(RegFileTest, ReportsAFileThatIsCutInASurrogatePair) {
    const QString text = QString(header) + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n;" + QChar(0xD834);
    const RegFile file = parse("\xFF\xFE" + utf16(text));
    EXPECT_THAT(problems(file), ElementsAre("4: the file is cut in the middle of a character"));
    EXPECT_THAT(names(file), ElementsAre("a"));
}

TEST(RegFileTest, ReadsAFileThatIsCutAnywhere) {
    const QByteArray whole =
        header + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n@=hex(2):41,\\\r\n  00\r\n";
    for (int size = 0; size < whole.size(); ++size) {
        const RegFile cut = parse(whole.left(size));
        EXPECT_LE(cut.problems.size(), 1U) << size;
        for (const Recordings::Problem& problem : cut.problems) {
            EXPECT_GE(problem.line, 1) << size;
        }
    }
}

TEST(RegFileTest, ReadsManyOpenStringsInReasonableTime) {
    const RegFile file = read("[HKEY_CURRENT_USER\\A]\r\n" + QByteArray("\"a\"=\"open\r\n").repeated(100000));
    EXPECT_EQ(file.problems.size(), 100000U);
}

} // namespace
