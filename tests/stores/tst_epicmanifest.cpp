#include "stores/EpicManifest.h"

#include "stores/EpicManifestIndex.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

TEST(EpicManifestTest, ReadsTheSevenTexts) {
    const auto entry = parseEpicManifest(R"({"FormatVersion": 0, "AppName": "Kiwi", "LaunchExecutable": "Bin/K.exe",
        "LaunchCommand": "-a -b", "InstallLocation": "D:\\Epic\\Kiwi", "DisplayName": "Käfer \u7AF6\u8D70",
        "CatalogNamespace": "ns", "CatalogItemId": "id", "bIsIncompleteInstall": false})");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "Kiwi");
    EXPECT_EQ(entry->LaunchExecutable, "Bin/K.exe");
    EXPECT_EQ(entry->LaunchCommand, "-a -b");
    EXPECT_EQ(entry->InstallLocation, "D:\\Epic\\Kiwi");
    EXPECT_EQ(entry->DisplayName, "Käfer 競走");
    EXPECT_EQ(entry->CatalogNamespace, "ns");
    EXPECT_EQ(entry->CatalogItemId, "id");
}

TEST(EpicManifestTest, WhatIsMissingOrNoTextIsEmpty) {
    const auto entry = parseEpicManifest(R"({"AppName": 12, "LaunchExecutable": null, "LaunchCommand": true,
        "InstallLocation": ["C:\\X"], "DisplayName": {"en": "X"}, "CatalogNamespace": "ns"})");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "");
    EXPECT_EQ(entry->LaunchExecutable, "");
    EXPECT_EQ(entry->LaunchCommand, "");
    EXPECT_EQ(entry->InstallLocation, "");
    EXPECT_EQ(entry->DisplayName, "");
    EXPECT_EQ(entry->CatalogNamespace, "ns");
    EXPECT_EQ(entry->CatalogItemId, "");
}

TEST(EpicManifestTest, NamesAreTakenWithTheirCase) {
    const auto entry = parseEpicManifest(R"({"appname": "wrong", "APPNAME": "wrong"})");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "");
}

TEST(EpicManifestTest, AnEmptyObjectIsAManifest) {
    EXPECT_TRUE(parseEpicManifest("{}"));
    EXPECT_TRUE(parseEpicManifest(" \r\n{ }\n"));
}

TEST(EpicManifestTest, AByteOrderMarkIsPassedOver) {
    const auto entry = parseEpicManifest("\xEF\xBB\xBF{\"AppName\": \"Kiwi\"}");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "Kiwi");
}

TEST(EpicManifestTest, WhatIsNoObjectIsNoManifest) {
    for (const char* text : {"", " ", "[]", "[{\"AppName\": \"Kiwi\"}]", "\"text\"", "12", "null", "{", "}", "{]",
                             "{\"AppName\": \"Kiwi\"", "{\"AppName\": \"Kiwi\"}}", "{\"AppName\": Kiwi}",
                             "{\"AppName\": \"Kiwi\",}", "{\"AppName\": \"K\xFF\"}", "AppName=Kiwi"}) {
        EXPECT_FALSE(parseEpicManifest(text)) << text;
    }
    EXPECT_FALSE(parseEpicManifest(QByteArray("\0\0\0\0", 4)));
    EXPECT_FALSE(parseEpicManifest(QByteArray("\xFF\xFE{\0}\0", 6))) << "UTF-16";
}

TEST(EpicManifestTest, NestingToAnyDepthDoesNoHarm) {
    const auto nested = [](int depth) {
        return "{\"AppName\": \"Kiwi\", \"x\": " + QByteArray(depth, '[') + QByteArray(depth, ']') + '}';
    };
    EXPECT_TRUE(parseEpicManifest(nested(100)));
    EXPECT_FALSE(parseEpicManifest(nested(100'000)));
    EXPECT_FALSE(parseEpicManifest(QByteArray(1'000'000, '[')));
    EXPECT_FALSE(parseEpicManifest(QByteArray("{\"x\":").repeated(200'000)));
}

TEST(EpicManifestTest, ALargeManifestIsReadWhole) {
    const QByteArray description(8 * 1024 * 1024, 'd');
    const auto entry = parseEpicManifest("{\"Description\": \"" + description + "\", \"AppName\": \"Kiwi\"}");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "Kiwi");
}

TEST(EpicManifestTest, OfAKeyThatIsThereTwiceTheLastCounts) {
    const auto entry = parseEpicManifest(R"({"AppName": "Kiwi", "InstallLocation": "C:\\X", "AppName": "Plum"})");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->AppName, "Plum");
}

} // namespace
