#include "recordings/Json.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

using Recordings::JsonFault;
using Recordings::JsonValue;
using Recordings::parseJson;

JsonValue read(const QByteArray& json) {
    JsonFault fault;
    const std::optional<JsonValue> value = parseJson(json, fault);
    EXPECT_TRUE(value) << fault.message.toStdString();
    return value.value_or(JsonValue());
}

/// Why the text is no JSON, as "line: message".
QString fault(const QByteArray& json) {
    JsonFault fault;
    EXPECT_FALSE(parseJson(json, fault)) << json.toStdString();
    return QString("%1: %2").arg(fault.line).arg(fault.message);
}

TEST(JsonTest, ReadsEveryKind) {
    EXPECT_EQ(read(" null ").kind, JsonValue::Kind::Null);
    EXPECT_EQ(read("true").kind, JsonValue::Kind::Boolean);
    EXPECT_EQ(read("-1.5e+3").kind, JsonValue::Kind::Number);
    EXPECT_EQ(read("\"x\"").kind, JsonValue::Kind::String);
    EXPECT_EQ(read("[]").kind, JsonValue::Kind::Array);
    EXPECT_EQ(read("\xEF\xBB\xBF{}").kind, JsonValue::Kind::Object);
}

TEST(JsonTest, ReadsMembersAndItemsWithTheirLines) {
    const JsonValue value = read("{\"a\": [1,\r\n \"ä\"\n],\n\"b\"\n:\nfalse}");
    ASSERT_EQ(value.items.size(), 2U);
    EXPECT_EQ(value.items[0].name, "a");
    ASSERT_EQ(value.items[0].items.size(), 2U);
    EXPECT_EQ(value.items[0].items[1].text, "ä");
    EXPECT_EQ(value.items[0].items[1].line, 2);
    EXPECT_EQ(value.items[1].name, "b");
    EXPECT_EQ(value.items[1].line, 6);
}

TEST(JsonTest, KnowsTheColumnsOfValuesAndNames) {
    const JsonValue value = read("{\"ä\": [1,\r\n \"x\", {} ],\n\t\"b\" :  false}");
    EXPECT_EQ(value.column, 1);
    EXPECT_EQ(value.items[0].namePlace.column, 2);
    EXPECT_EQ(value.items[0].column, 7);
    EXPECT_EQ(value.items[0].items[1].column, 2);
    EXPECT_EQ(value.items[0].items[2].column, 7);
    EXPECT_EQ(value.items[1].namePlace.line, 3);
    EXPECT_EQ(value.items[1].namePlace.column, 2);
    EXPECT_EQ(value.items[1].column, 9);
}

TEST(JsonTest, ReadsEscapes) {
    EXPECT_EQ(read(R"("\"\\\/\b\f\n\r\t\u00e4\uD834\udd1e")").text, QString("\"\\/\b\f\n\r\tä𝄞"));
}

TEST(JsonTest, SaysWhatIsWrong) {
    EXPECT_EQ(fault(""), "1: a value is expected");
    EXPECT_EQ(fault("{"), "1: a name in quotes is expected");
    EXPECT_EQ(fault("{\n\"a\" 1}"), "2: \":\" is expected");
    EXPECT_EQ(fault("{\"a\": 1 \"b\"}"), "1: \",\" or \"}\" is expected");
    EXPECT_EQ(fault("{\"a\": 1,}"), "1: there is a comma too many before \"}\"");
    EXPECT_EQ(fault("[1,\n\n]"), "3: there is a comma too many before \"]\"");
    EXPECT_EQ(fault("[,]"), "1: a value is expected");
    EXPECT_EQ(fault("[\n// one\n1]"), "2: JSON has no comments");
    EXPECT_EQ(fault(QByteArray("\xFF\xFE[\0", 4)), "0: the file is UTF-16; it must be saved as UTF-8");
    EXPECT_EQ(fault(QByteArray("\xFE\xFF\0[", 4)), "0: the file is UTF-16; it must be saved as UTF-8");
    EXPECT_EQ(fault("[1\n\n2]"), "3: \",\" or \"]\" is expected");
    EXPECT_EQ(fault("[nothing]"), "1: a value is expected");
    EXPECT_EQ(fault("[]\n[]"), "2: something follows the end");
    EXPECT_EQ(fault("[\"a\n\"]"), "1: the string is not closed");
    EXPECT_EQ(fault("\"a"), "1: the string is not closed");
    EXPECT_EQ(fault("\"a\tb\""), "1: a control character in a string");
    EXPECT_EQ(fault("\"C:\\Games\""), "1: a backslash in a string must be doubled");
    EXPECT_EQ(fault(R"("\u12")"), "1: a backslash in a string must be doubled");
    EXPECT_EQ(fault("\"\xE4\""), "0: the file is not UTF-8");
    EXPECT_EQ(fault(QByteArray(100000, '[')), "1: too deep");
}

} // namespace
