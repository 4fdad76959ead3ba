// What the programs and libraries that are given out need and show. LURULUDRI_BINARIES names the folder of others than
// those of the build.

#include "guards/windows/ModuleNames.h"

#include "common/QtPrinters.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const QByteArray qtCore = "Qt5Core.dll";

QString binary(const QString& name) {
    return qEnvironmentVariable("LURULUDRI_BINARIES", LURULUDRI_BUILT) + '/' + name;
}

/// What Windows has, and the runtime that the compiler's programs share.
bool isOnEveryPc(const QString& dll) {
    const QStringList patterns =
        QStringList{"ADVAPI32.dll", "KERNEL32.dll", "MPR.dll",     "NETAPI32.dll", "ole32.dll", "SHELL32.dll",
                    "USER32.dll",   "USERENV.dll",  "VERSION.dll", "WINMM.dll",    "WS2_32.dll"} +
        QString(LURULUDRI_RUNTIME).split(' ');
    return std::any_of(patterns.begin(), patterns.end(), [&dll](const QString& pattern) {
        return QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern),
                                  QRegularExpression::CaseInsensitiveOption)
            .match(dll)
            .hasMatch();
    });
}

TEST(ModulesTest, ThePluginExportsCreateAlone) {
    EXPECT_THAT(namesOfModule(binary("Luruludri.dll")).exports, ElementsAre("Create"));
}

class ModuleTest : public ::testing::TestWithParam<const char*> {};

TEST_P(ModuleTest, NeedsWindowsAndQtCoreAlone) {
    const auto imports = namesOfModule(binary(GetParam())).imports;
    EXPECT_THAT(imports, Contains(::testing::Key(QByteArray("KERNEL32.dll")))) << "its imports cannot be read";
    for (const auto& [dll, names] : imports) {
        EXPECT_TRUE(dll == qtCore || isOnEveryPc(dll)) << dll.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(All, ModuleTest, ::testing::Values("Luruludri.dll", "luruludri-find.exe", "Qt5Core.dll"));

TEST(ModulesTest, QtCoreLiesBesideThem) {
    EXPECT_TRUE(QFileInfo::exists(binary(qtCore)));
}

// Qt's DLL may then be made with another standard library than the plug-in.
TEST(ModulesTest, NoTypeOfTheStandardLibraryCrossesToQt) {
    QByteArrayList names = namesOfModule(binary("Luruludri.dll")).imports[qtCore];
    ASSERT_THAT(names, Not(IsEmpty()));
    names.erase(std::remove_if(names.begin(), names.end(), std::not_fn(namesStandardType)), names.end());
    EXPECT_THAT(names, IsEmpty());
}

TEST(ModuleNamesTest, GccsNamesTellOfTheStandardLibrary) {
    EXPECT_TRUE(namesStandardType("_ZN11QJsonObjectC1ESt16initializer_listI5QPairI7QString10QJsonValueEE"));
    EXPECT_TRUE(namesStandardType("_ZN7QString13fromStdStringERKSs"));
    EXPECT_TRUE(namesStandardType("_ZNSt6localeC1Ev"));
    EXPECT_FALSE(namesStandardType("_ZN7QString6appendE5QChar"));
    EXPECT_FALSE(namesStandardType("_ZN4StarC1ERKS_"));
    EXPECT_FALSE(namesStandardType("_ZNK11QStringList4joinERK7QStringS2_"));
    EXPECT_FALSE(namesStandardType("qt_memfill32"));
}

TEST(ModuleNamesTest, MicrosoftsNamesTellOfTheStandardLibrary) {
    EXPECT_TRUE(
        namesStandardType("??0QJsonObject@@QEAA@V?$initializer_list@U?$QPair@VQString@@VQJsonValue@@@@@std@@@Z"));
    EXPECT_FALSE(namesStandardType("?append@QString@@QEAAAEAV1@VQChar@@@Z"));
    EXPECT_FALSE(namesStandardType("??0QString@@QEAA@AEBV0@@Z"));
}

} // namespace
