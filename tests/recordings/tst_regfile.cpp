#include "recordings/RegFile.h"
#include "recordings/RegValues.h"
#include "recordings/Utf16Text.h"

#include "common/QtPrinters.h"

#include <gmock/gmock.h>

namespace {

using Recordings::RegFile;
using Recordings::RegKey;
using Recordings::RegValue;
using Recordings::storedText;
using Recordings::toUtf16;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray header = "Windows Registry Editor Version 5.00\r\n";

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

/// Expects one fault in a file with these lines behind its header, and that values of these names are read all the
/// same.
void expectFault(const QByteArray& lines, const QString& problem, const std::vector<QString>& namesLeft) {
    const RegFile file = read(lines);
    EXPECT_THAT(problems(file), ElementsAre(problem)) << lines.toStdString();
    EXPECT_EQ(names(file), namesLeft) << lines.toStdString();
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
    EXPECT_EQ(read.data, storedText("C:\\Games\\\"X\""));
}

TEST(RegFileTest, ReadsANameWithEscapesAndNone) {
    EXPECT_EQ(value("\"C:\\\\a=\\\"b\\\"\"=\"1\"").name, "C:\\a=\"b\"");
    EXPECT_EQ(value("@=\"x\"").name, "") << "the default value";
}

TEST(RegFileTest, ReadsAStringOfSeveralLinesAsRegeditWritesIt) {
    EXPECT_EQ(value("\"a\"=\"one\r\n[two]\r\nthree\"\r\n").data, storedText("one\r\n[two]\r\nthree"));
    EXPECT_EQ(value("\"a\"=\"one\r\n\"\r\n").data, storedText("one\r\n"));
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
                                           "\xFF\xFE" + toUtf16(text), "\xFF\xFE" + toUtf16(withReturns)};
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

// Each way in which a file can be wrong.

TEST(RegFileTest, ReportsAMissingHeader) {
    const RegFile file = parse("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n");
    EXPECT_THAT(problems(file), ElementsAre("1: the first line is not \"Windows Registry Editor Version 5.00\""));
    EXPECT_THAT(file.keys, IsEmpty()) << "regedit doesn't import it either";
    EXPECT_EQ(parse("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n").problems.size(), 1U) << "the old format";
    EXPECT_EQ(parse("").problems.size(), 1U);
}

TEST(RegFileTest, AFaultOfAValueCostsOnlyTheValue) {
    const QString open = "3: the string is not closed";
    const QString noValue = "3: a string, \"dword:\", \"hex:\", \"hex(…):\" or \"-\" is expected";
    const QString surplus = "3: something follows the value in its line";
    const QString badNumber = "3: 1 to 8 hexadecimal digits are expected";
    const QString badByte = "3: a byte in hexadecimal digits is expected";
    const QString notContinued = "3: the list of bytes is not continued";
    const std::vector<std::pair<QByteArray, QString>> faults{
        {R"("a"="open)", open},
        {R"("a"="C:\\Games\")", open},
        {R"("a=\"1\")", open},
        {R"("a"="C:\Games")", "3: a backslash in a string must be doubled"},
        {R"("a"="1" 2)", surplus},
        {R"("a"=hex:01 02)", surplus},
        {R"("a")", "3: \"=\" is expected after the name of a value"},
        {R"("a"=)", noValue},
        {R"("a"=word)", noValue},
        {"garbage", "3: the line is neither a key nor a value"},
        {R"("a"=dword:)", badNumber},
        {R"("a"=dword:123456789)", badNumber},
        {R"("a"=hex(2:41)", "3: \"):\" is expected after the type"},
        {R"("a"=hex:01,xy)", badByte},
        {R"("a"=hex:01,)", badByte},
        {"\"a\"=hex:01,\\\r\n  02,xy,\\\r\n  03,\\\r\n  04", "4: a byte in hexadecimal digits is expected"},
        {R"("a"=hex:01,\)", notContinued},
        {"\"a\"=hex:01,\\\r\n", notContinued},
        {R"("a"=hex:01,\ 02)", "3: a line break is expected after the backslash"}};
    for (const auto& [line, problem] : faults) {
        expectFault("[HKEY_LOCAL_MACHINE\\A]\r\n" + line +
                        "\r\n\"after\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n@=\"2\"\r\n",
                    problem, {"after", ""});
    }
}

TEST(RegFileTest, AStringThatIsNotClosedEndsAtTheNextKeyOrTheEnd) {
    expectFault("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"open\r\nstill\r\n[HKEY_CURRENT_USER\\B]\r\n\"b\"=\"1\"\r\n",
                "3: the string is not closed", {"b"});
    expectFault("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n\"b\"=\"open\r\nmore\r\n", "4: the string is not closed",
                {"a"});
}

TEST(RegFileTest, AFaultOfAKeyCostsItsValuesToo) {
    expectFault("[HKEY_CURRENT_USER\\A\r\n\"a\"=\"1\"\r\n[HKEY_CURRENT_USER\\B]\r\n\"b\"=\"1\"\r\n",
                "2: the key name is not closed", {"b"});
    expectFault("[HKLM\\A]\r\n\"a\"=\"1\"\r\n", "2: \"HKLM\" is no root key, such as HKEY_LOCAL_MACHINE", {});
    expectFault("[HKEY_CURRENT_USER" + QByteArray("\\a").repeated(512) + "]", "2: the key is more than 512 levels deep",
                {});
    expectFault("\"a\"=\"1\"", "2: the value stands before the first key", {});
}

TEST(RegFileTest, ReportsALineThatIsNotUtf8) {
    expectFault("[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"\xE4\"\r\n\"b\"=\"1\"\r\n", "3: the line is not UTF-8", {"a", "b"});
}

TEST(RegFileTest, ReportsAFileThatIsCutInACharacter) {
    const QString text = QString(header) + "[HKEY_CURRENT_USER\\A]\r\n\"a\"=\"1\"\r\n";
    const std::vector<QByteArray> cut = {toUtf16(text) + "[", toUtf16(text + ";" + QChar(0xD834))};
    for (const QByteArray& bytes : cut) {
        const RegFile file = parse("\xFF\xFE" + bytes);
        EXPECT_THAT(problems(file), ElementsAre("4: the file is cut in the middle of a character"));
        EXPECT_THAT(names(file), ElementsAre("a"));
    }
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
