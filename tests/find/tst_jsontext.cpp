#include "find/catalogue/JsonText.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

/// The offset and the message of the text's first fault; empty when it has none.
std::string faultIn(const char* json) {
    const auto fault = Find::findStringFault(QByteArray(json));
    return fault ? std::to_string(fault->offset) + " " + fault->message.toStdString() : "";
}

std::string positionIn(const char* text, int offset) {
    const Find::TextPosition position = Find::textPosition(QByteArray(text), offset);
    return std::to_string(position.line) + ":" + std::to_string(position.column);
}

constexpr const char* badEscape = "illegal escape sequence (a backslash is written \\\\)";

TEST(JsonText, GoodStringsHaveNoFault) {
    EXPECT_EQ(faultIn(""), "");
    EXPECT_EQ(faultIn(R"({"a": "b", "c": ["", "\\"]})"), "");
    EXPECT_EQ(faultIn(R"(["\" \\ \/ \b \f \n \r \t \u00e4 \uABCD"])"), "");
}

TEST(JsonText, ABackslashBeforeAnyOtherCharacterIsAFault) {
    EXPECT_EQ(faultIn(R"(["D:\Games"])"), std::string("4 ") + badEscape);
    EXPECT_EQ(faultIn(R"(["\u12"])"), std::string("2 ") + badEscape);
    EXPECT_EQ(faultIn(R"(["\u12g4"])"), std::string("2 ") + badEscape);
    EXPECT_EQ(faultIn("[\"\\"), std::string("2 ") + badEscape);
}

TEST(JsonText, ABackslashOutsideStringsIsLeftToTheParser) {
    EXPECT_EQ(faultIn(R"([\G])"), "");
}

TEST(JsonText, AStringWithoutEndIsAFaultWhereItBegins) {
    EXPECT_EQ(faultIn(R"({"a": "b)"), "6 unterminated string");
    EXPECT_EQ(faultIn("{\"a\": \"b\n\"}"), "6 unterminated string");
    EXPECT_EQ(faultIn("{\"a\": \"b\r\n\"}"), "6 unterminated string");
    EXPECT_EQ(faultIn("\""), "0 unterminated string");
    EXPECT_EQ(faultIn(R"(["\"])"), "1 unterminated string");
}

TEST(JsonText, ARawControlCharacterInAStringIsAFault) {
    EXPECT_EQ(faultIn("[\"a\tb\"]"), "3 control character in a string");
    EXPECT_EQ(faultIn("[\t\"a\"]"), "");
}

TEST(JsonText, PositionsCountLinesAndCharacters) {
    EXPECT_EQ(positionIn("abc", 0), "1:1");
    EXPECT_EQ(positionIn("abc", 2), "1:3");
    EXPECT_EQ(positionIn("a\nbc\n\nd", 6), "4:1");
    EXPECT_EQ(positionIn("a\r\nb", 3), "2:1");
    EXPECT_EQ(positionIn("\xC3\xA4\xE2\x82\xACx", 5), "1:3");
}

TEST(JsonText, PositionsOutsideTheTextAreItsEnds) {
    EXPECT_EQ(positionIn("ab", 99), "1:3");
    EXPECT_EQ(positionIn("ab", -1), "1:1");
}

} // namespace
