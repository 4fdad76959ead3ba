#include "Trace.h"

#include "find/record/RegFileWriter.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using Host::NeutralNames;
using Host::RegistryRecord;
using namespace TestTrace;

constexpr const char* machine = "HKEY_LOCAL_MACHINE";
constexpr const char* user = "HKEY_CURRENT_USER";
constexpr const char* classes = "HKEY_CLASSES_ROOT";

RegistryRecord recordOf(std::initializer_list<Host::TraceEvent> events) {
    RegistryRecord record;
    for (const Host::TraceEvent& event : events) {
        record.add(event);
    }
    return record;
}

/// The registry file's lines without its header and without empty ones.
QStringList linesOf(const RegistryRecord& record, const NeutralNames& names = {}) {
    QStringList leftOut;
    const QByteArray bytes = Host::renderRegFile(record, names, leftOut);
    EXPECT_EQ(leftOut, QStringList());
    EXPECT_TRUE(bytes.startsWith("\xFF\xFE"));
    const QString text(reinterpret_cast<const QChar*>(bytes.constData() + 2), (bytes.size() - 2) / 2);
    QStringList lines = text.split("\r\n", Qt::SkipEmptyParts);
    EXPECT_EQ(lines.value(0), "Windows Registry Editor Version 5.00");
    return lines.mid(1);
}

TEST(RegistryRecord, HasTheKeysThatWereOpenedAndTheirListedOnes) {
    const RegistryRecord record =
        recordOf({key(user, 64, "Software\\X"), key(user, 64, "Software\\missing", 2),
                  Trace::SubKeys{{user, 64, "Software\\X"}, {"b", "a"}}, exists("C:\\x", true)});
    EXPECT_EQ(linesOf(record), (QStringList{"[HKEY_CURRENT_USER\\Software\\X]", "[HKEY_CURRENT_USER\\Software\\X\\a]",
                                            "[HKEY_CURRENT_USER\\Software\\X\\b]"}));
}

TEST(RegistryRecord, HasTheValuesThatWereRead) {
    const RegistryRecord record = recordOf({text(user, 64, "Software\\X", "Title", "say \"hello\" to C:\\x"),
                                            text(user, 64, "software\\x", "", "Käfer"),
                                            Trace::Value{{user, 64, "Software\\X"}, "none", 2, 0, {}}});
    EXPECT_EQ(linesOf(record), (QStringList{"[HKEY_CURRENT_USER\\Software\\X]", "@=\"Käfer\"",
                                            "\"Title\"=\"say \\\"hello\\\" to C:\\\\x\""}));
    EXPECT_EQ(record.valueCount(), 2);
}

TEST(RegistryRecord, FilesThe32BitViewWhereWindowsDoes) {
    const RegistryRecord record =
        recordOf({key(machine, 32, "SOFTWARE\\X"), key(machine, 64, "SOFTWARE\\X"), key(user, 32, "Software\\X"),
                  key(machine, 32, "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths")});
    EXPECT_EQ(linesOf(record),
              (QStringList{"[HKEY_CURRENT_USER\\Software\\X]",
                           "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths]",
                           "[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\X]", "[HKEY_LOCAL_MACHINE\\SOFTWARE\\X]"}));
}

TEST(RegistryRecord, The32BitViewGoesFirstWhereViewsAreShared) {
    const auto from64 = text(classes, 64, "steam", "", "64");
    const auto from32 = text(classes, 32, "steam", "", "32");
    const QStringList expected{"[HKEY_CLASSES_ROOT\\steam]", "@=\"32\""};
    EXPECT_EQ(linesOf(recordOf({from64, from32})), expected);
    EXPECT_EQ(linesOf(recordOf({from32, from64})), expected);
    EXPECT_EQ(linesOf(recordOf({from64, key(classes, 32, "steam", 2)})).value(1), "@=\"64\"");
}

TEST(RegFileWriter, WritesWhatIsNoProperStringByteByByte) {
    const QString path = "Software\\X";
    const RegistryRecord record = recordOf(
        {value(user, 64, path, "cut", 1, "a"), value(user, 64, path, "empty", 1, ""),
         value(user, 64, path, "lines", 1, stored("a\nb")), value(user, 64, path, "number", 4, "\x01\x02\x03\x04"),
         value(user, 64, path, "open", 1, stored("a").left(2)), value(user, 64, path, "short", 4, "\x01"),
         value(user, 64, path, "variable", 2, stored("%")),
         value(user, 64, path, "zero", 1, stored("a") + stored("b"))});
    EXPECT_EQ(linesOf(record).mid(1),
              (QStringList{"\"cut\"=hex(1):61", "\"empty\"=hex(1):", "\"lines\"=hex(1):61,00,0a,00,62,00,00,00",
                           "\"number\"=dword:04030201", "\"open\"=hex(1):61,00", "\"short\"=hex(4):01",
                           "\"variable\"=hex(2):25,00,00,00", "\"zero\"=hex(1):61,00,00,00,62,00,00,00"}));
}

TEST(RegFileWriter, BreaksLongLinesAsRegeditDoes) {
    const RegistryRecord record = recordOf({value(user, 64, "X", "b", 3, QByteArray(26, '\x7F'))});
    EXPECT_EQ(linesOf(record).mid(1), (QStringList{"\"b\"=hex:" + QString("7f,").repeated(25) + "\\", "  7f"}));
}

TEST(RegFileWriter, PutsNeutralNamesIntoKeysAndText) {
    const NeutralNames names({{"anna", "user"}}, "Users");
    const RegistryRecord record =
        recordOf({text(user, 64, "Software\\anna_is1", "anna", "C:\\Users\\Anna\\x"),
                  value(user, 64, "Software\\anna_is1", "b", 3, "anna"),
                  value(user, 64, "Software\\anna_is1", "l", 7, stored("anna") + stored(""))});
    EXPECT_EQ(linesOf(record, names),
              (QStringList{"[HKEY_CURRENT_USER\\Software\\user_is1]", "\"anna\"=\"C:\\\\Users\\\\user\\\\x\"",
                           "\"b\"=hex:75,73,65,72", "\"l\"=hex(7):75,00,73,00,65,00,72,00,00,00,00,00"}))
        << "but not into the names that finders ask for";
}

TEST(RegFileWriter, LeavesTheNamesOfRoots) {
    const NeutralNames names({{"root", "user"}, {"HKEY", "pc"}}, "Users");
    EXPECT_EQ(linesOf(recordOf({key(classes, 64, "steam\\root")}), names),
              QStringList{"[HKEY_CLASSES_ROOT\\steam\\user]"});
}

TEST(RegFileWriter, LeavesOutWhatNoRegistryFileCanName) {
    QStringList leftOut;
    const RegistryRecord record = recordOf({key(user, 64, "Software\\a\nb"), key(user, 64, "Software\\c]d")});
    const QByteArray bytes = Host::renderRegFile(record, {}, leftOut);
    EXPECT_EQ(leftOut, QStringList{"HKEY_CURRENT_USER\\Software\\a\nb"});
    EXPECT_TRUE(bytes.contains(stored("c]d]").chopped(2)));
}

} // namespace
