#include "support/FileVersion.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QString>

#include <windows.h>

#include <vector>

namespace {

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// A text of the version resource of a file; empty when there is none.
QString versionText(const QString& path, const char* name) {
    std::vector<char> block(::GetFileVersionInfoSizeW(wide(path), nullptr));
    const QString place = QString("\\StringFileInfo\\040904B0\\") + name;
    void* text = nullptr;
    UINT length = 0;
    if (block.empty() || !::GetFileVersionInfoW(wide(path), 0, static_cast<DWORD>(block.size()), block.data()) ||
        !::VerQueryValueW(block.data(), wide(place), &text, &length)) {
        return {};
    }
    return QString::fromWCharArray(static_cast<const wchar_t*>(text));
}

QString fileVersion(const QString& path) {
    const FileVersion version = readFileVersion(path);
    return QString("%1.%2.%3.%4").arg(version.major).arg(version.minor).arg(version.build).arg(version.revision);
}

class VersionResource : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Product, VersionResource, testing::Values(LURULUDRI_PLUGIN, LURULUDRI_FIND));

TEST_P(VersionResource, TellsTheProjectsVersion) {
    EXPECT_EQ(fileVersion(GetParam()), QString(LURULUDRI_VERSION) + ".0");
    EXPECT_EQ(versionText(GetParam(), "FileVersion"), LURULUDRI_VERSION);
    EXPECT_EQ(versionText(GetParam(), "ProductVersion"), LURULUDRI_VERSION);
}

TEST_P(VersionResource, TellsWhatTheFileIsAndWhoseItIs) {
    EXPECT_EQ(versionText(GetParam(), "OriginalFilename"), QFileInfo(GetParam()).fileName());
    EXPECT_EQ(versionText(GetParam(), "ProductName"), "Luruludri");
    EXPECT_EQ(versionText(GetParam(), "CompanyName"), "Veltrane");
    EXPECT_EQ(versionText(GetParam(), "LegalCopyright"), "Copyright \u00A9 Veltrane");
}

TEST(VersionDescription, IsOfThePluginOrOfTheProgram) {
    EXPECT_EQ(versionText(LURULUDRI_PLUGIN, "FileDescription"), "Finds installed games and VR runtimes");
    EXPECT_EQ(versionText(LURULUDRI_FIND, "FileDescription"), "Asks Luruludri for games and VR runtimes");
}

} // namespace
