#include "find/record/UsedParts.h"
#include "recordings/RegValues.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString same(const QString& text) {
    return text;
}

QByteArray used(const QString& path, const QByteArray& contents) {
    return Find::usedContents(path, contents, same).value_or("(unknown)");
}

/// What is left of an uninstall command.
std::string command(const QString& text) {
    const Recordings::RegValue value = {"UninstallString", false, 1, Recordings::storedText(text)};
    return Recordings::textOf(1, Find::usedValue(value).data).value().toStdString();
}

TEST(UsedParts, OfAnEpicManifestAreSevenFields) {
    const QByteArray manifest = used("C:\\x\\1.ITEM", R"({"AppName": "A", "DisplayName": "D", "InstallLocation": "L",
        "LaunchExecutable": "x.exe", "LaunchCommand": "-x", "CatalogNamespace": "N", "CatalogItemId": 5,
        "AccountId": "secret", "Token": {"AppName": "secret"}, "InstallTags": ["secret"]})");
    EXPECT_EQ(QJsonDocument::fromJson(manifest).object(), (QJsonObject{{"AppName", "A"},
                                                                       {"DisplayName", "D"},
                                                                       {"InstallLocation", "L"},
                                                                       {"LaunchExecutable", "x.exe"},
                                                                       {"LaunchCommand", "-x"},
                                                                       {"CatalogNamespace", "N"}}));
    EXPECT_EQ(used("1.item", "no JSON, secret"), "");
}

TEST(UsedParts, OfSteamsLibrariesAreTheirPaths) {
    EXPECT_EQ(used("D:/Steam/steamapps/libraryfolders.vdf",
                   "\"libraryfolders\"\n{\n\t\"0\"\n\t{\n\t\t\"path\"\t\t\"D:\\\\Steam\"\n\t\t\"label\"\t\"secret\"\n"
                   "\t\t\"contentid\"\t\"4711\"\n\t\t\"apps\"\n\t\t{\n\t\t\t\"7\"\t\"1\"\n\t\t}\n\t}\n}\n\0secret"),
              "\"path\"\t\t\"D:\\\\Steam\"\n");
}

TEST(UsedParts, OfAFileThatNobodyKnowsAreNone) {
    EXPECT_EQ(used("C:\\x.ini", "secret"), "(unknown)");
}

TEST(UsedParts, OfAnUninstallCommandAreWhatRulesLookAt) {
    EXPECT_EQ(command("\"C:\\G\\unins000.exe\" /LOG=secret"), "\"C:\\G\\unins000.exe\"");
    EXPECT_EQ(command("C:\\G\\uninst.exe --key=secret x"), "C:\\G\\uninst.exe");
    EXPECT_EQ(command("C:\\My Games\\uninst.exe"), "C:\\My Games\\uninst.exe");
    EXPECT_EQ(command("C:\\G\\u.exe /S"), "C:\\G\\u.exe /S") << "the last separator ends the folder";
    EXPECT_EQ(command("MsiExec.exe /X{SERIAL}"), "MsiExec.exe");
    EXPECT_EQ(command("\"C:\\x.exe\" msiexec.EXE secret"), "MsiExec.exe");
    EXPECT_EQ(command("steam://uninstall/77"), "steam://uninstall");
    EXPECT_EQ(command("\"C:\\ProgramData\\Package Cache\\{1}\\x.exe\" /secret"), "Package Cache");
    EXPECT_EQ(command("\"C:\\no end"), "\"C:\\no end\"");
    EXPECT_EQ(command(""), "");
}

TEST(UsedParts, AreMapped) {
    const auto upper = [](const QString& text) { return text.toUpper(); };
    EXPECT_EQ(Find::usedContents("libraryfolders.vdf", "\"path\" \"c:\\\\x\"", upper), "\"path\" \"C:\\\\X\"\n");
}

} // namespace
