#include "stores/EpicManifest.h"

#include "stores/EpicManifestIndex.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

/// The texts of a manifest, or "(none)".
QString textsOf(const QByteArray& manifest) {
    const auto entry = parseEpicManifest(manifest);
    return entry
               ? QStringList{entry->AppName,     entry->LaunchExecutable, entry->LaunchCommand, entry->InstallLocation,
                             entry->DisplayName, entry->CatalogNamespace, entry->CatalogItemId}
                     .join(" | ")
               : "(none)";
}

QString appNameOf(const QByteArray& manifest) {
    return textsOf(manifest).section(" | ", 0, 0);
}

TEST(EpicManifestTest, ReadsTheSevenTexts) {
    EXPECT_EQ(textsOf(R"({"FormatVersion": 0, "AppName": "Kiwi", "LaunchExecutable": "Bin/K.exe",
        "LaunchCommand": "-a -b", "InstallLocation": "D:\\Epic\\Kiwi", "DisplayName": "Käfer \u7AF6\u8D70",
        "CatalogNamespace": "ns", "CatalogItemId": "id", "bIsIncompleteInstall": false})"),
              "Kiwi | Bin/K.exe | -a -b | D:\\Epic\\Kiwi | Käfer 競走 | ns | id");
}

TEST(EpicManifestTest, WhatIsMissingOrNoTextIsEmpty) {
    EXPECT_EQ(textsOf(R"({"AppName": 12, "LaunchExecutable": null, "LaunchCommand": true,
        "InstallLocation": ["C:\\X"], "DisplayName": {"en": "X"}, "CatalogNamespace": "ns"})"),
              " |  |  |  |  | ns | ");
}

TEST(EpicManifestTest, NamesAreTakenWithTheirCase) {
    EXPECT_EQ(appNameOf(R"({"appname": "wrong", "APPNAME": "wrong"})"), "");
}

TEST(EpicManifestTest, AnEmptyObjectIsAManifest) {
    EXPECT_TRUE(parseEpicManifest("{}"));
    EXPECT_TRUE(parseEpicManifest(" \r\n{ }\n"));
}

TEST(EpicManifestTest, AByteOrderMarkIsPassedOver) {
    EXPECT_EQ(appNameOf("\xEF\xBB\xBF{\"AppName\": \"Kiwi\"}"), "Kiwi");
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
    EXPECT_EQ(appNameOf("{\"Description\": \"" + description + "\", \"AppName\": \"Kiwi\"}"), "Kiwi");
}

TEST(EpicManifestTest, OfAKeyThatIsThereTwiceTheLastCounts) {
    EXPECT_EQ(appNameOf(R"({"AppName": "Kiwi", "InstallLocation": "C:\\X", "AppName": "Plum"})"), "Plum");
}

} // namespace
