#include "TestTrace.h"

#include "find/record/PcFacts.h"
#include "recordings/RegFileWriter.h"
#include "recordings/Utf16Text.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

using namespace TestTrace;

constexpr const char* machine = "HKEY_LOCAL_MACHINE";
constexpr const char* user = "HKEY_CURRENT_USER";
constexpr const char* classes = "HKEY_CLASSES_ROOT";

/// The lines of a registry file of what is taken, without its header and without empty ones.
QStringList linesOf(std::initializer_list<Find::TraceEvent> events) {
    Recordings::Registry registry;
    for (const Find::TraceEvent& event : events) {
        Find::addToRegistry(event, registry);
    }
    QStringList leftOut;
    const QByteArray bytes = Recordings::renderRegFile(registry, leftOut);
    return Recordings::fromUtf16(bytes.mid(2)).split("\r\n", Qt::SkipEmptyParts).mid(1);
}

TEST(RegistryFacts, HasTheKeysThatWereOpenedAndTheirListedOnes) {
    const QStringList lines =
        linesOf({key(user, 64, "Software\\X"), key(user, 64, "Software\\Y"), key(user, 64, "Software\\missing", 2),
                 Trace::SubKeys{{user, 64, "Software\\X"}, {"b", "a"}}, exists("C:\\x", true)});
    EXPECT_EQ(lines, (QStringList{"[HKEY_CURRENT_USER\\Software\\X\\a]", "[HKEY_CURRENT_USER\\Software\\X\\b]",
                                  "[HKEY_CURRENT_USER\\Software\\Y]"}));
}

TEST(RegistryFacts, HasTheValuesThatWereRead) {
    const QStringList lines = linesOf({text(user, 64, "Software\\X", "Title", "say \"hello\" to C:\\x"),
                                       text(user, 64, "software\\x", "", "Käfer"),
                                       Trace::Value{{user, 64, "Software\\X"}, "none", 2, 0, {}}});
    EXPECT_EQ(lines, (QStringList{"[HKEY_CURRENT_USER\\Software\\X]", "@=\"Käfer\"",
                                  "\"Title\"=\"say \\\"hello\\\" to C:\\\\x\""}));
}

TEST(RegistryFacts, HasOfValuesOnlyWhatFindersUse) {
    const QString path = "Software\\X";
    EXPECT_EQ(
        linesOf({value(user, 64, path, "bytes", 3, "secret"), value(user, 64, path, "cut", 1, stored("a").left(3)),
                 value(user, 64, path, "many", 7, stored("x") + stored("")),
                 value(user, 64, path, "number", 4, "\x01\x02\x03\x04"),
                 value(user, 64, path, "variable", 2, stored("%")),
                 value(user, 64, path, "zero", 1, stored("a") + stored("secret"))})
            .mid(1),
        (QStringList{"\"bytes\"=hex:00,00,00,00,00,00", "\"cut\"=\"a\"", "\"many\"=hex(7):00,00,00,00,00,00",
                     "\"number\"=dword:04030201", "\"variable\"=hex(2):00,00,00,00", "\"zero\"=\"a\""}));
}

TEST(RegistryFacts, FilesThe32BitViewWhereWindowsDoes) {
    EXPECT_EQ(linesOf({key(machine, 32, "Software\\X"), key(machine, 64, "SOFTWARE\\X"), key(user, 32, "Software\\X"),
                       key(machine, 32, "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths")}),
              (QStringList{"[HKEY_CURRENT_USER\\Software\\X]",
                           "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths]",
                           "[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\X]", "[HKEY_LOCAL_MACHINE\\Software\\X]"}));
}

TEST(RegistryFacts, The32BitViewGoesFirstWhereViewsAreShared) {
    const auto from64 = text(classes, 64, "steam", "", "64");
    const auto from32 = text(classes, 32, "steam", "", "32");
    const QStringList expected{"[HKEY_LOCAL_MACHINE\\Software\\Classes\\steam]", "@=\"32\""};
    EXPECT_EQ(linesOf({from64, from32}), expected);
    EXPECT_EQ(linesOf({from32, from64}), expected);
    EXPECT_EQ(linesOf({from64, key(classes, 32, "steam", 2)}).value(1), "@=\"64\"");
}

} // namespace
