#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/SystemFunctions.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <vector>

namespace {

using PackagesByFamily = qint32 (*)(const char16_t*, quint32*, char16_t**, quint32*, char16_t*);
using OpenPackage = qint32 (*)(const char16_t*, quint32, void**);
using ClosePackage = qint32 (*)(void*);
using ApplicationIds = qint32 (*)(void*, quint32*, unsigned char*, quint32*);

template <typename Function>
Function function(const char* name) {
    return reinterpret_cast<Function>(Platform::kernelFunction(name));
}

class AppPackagesTest : public ::testing::Test {
protected:
    AppPackagesTest() {
        pc.describe(R"({"packages": [
            {"family": "X_abc", "fullName": "X_1", "applicationIds": ["X_abc!App", "X_abc!B"]},
            {"family": "Y_abc", "fullName": "Y_1"}, {"family": "x_ABC", "fullName": "X_22"}]})");
        pc.choose();
    }

    RecordingFolder pc;
};

TEST_F(AppPackagesTest, AreFoundByTheirFamily) {
    const auto find = function<PackagesByFamily>("GetPackagesByPackageFamily");
    quint32 count = 0;
    quint32 length = 0;
    ASSERT_EQ(find(u"X_abc", &count, nullptr, &length, nullptr), 122);
    EXPECT_EQ(count, 2U);
    EXPECT_EQ(length, 9U);
    std::array<char16_t*, 2> names{};
    std::array<char16_t, 9> buffer{};
    ASSERT_EQ(find(u"X_abc", &count, names.data(), &length, buffer.data()), 0);
    EXPECT_EQ(QString::fromUtf16(names[0]), "X_1");
    EXPECT_EQ(QString::fromUtf16(names[1]), "X_22");
}

TEST_F(AppPackagesTest, OfAnUnknownFamilyAreNone) {
    quint32 count = 0;
    quint32 length = 0;
    EXPECT_EQ(function<PackagesByFamily>("GetPackagesByPackageFamily")(u"Z", &count, nullptr, &length, nullptr), 0);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(length, 0U);
    EXPECT_EQ(function<PackagesByFamily>("GetPackagesByPackageFamily")(nullptr, &count, nullptr, &length, nullptr), 87);
}

TEST_F(AppPackagesTest, TellTheirApplications) {
    void* package = nullptr;
    ASSERT_EQ(function<OpenPackage>("OpenPackageInfoByFullName")(u"x_1", 0, &package), 0);
    const auto ids = function<ApplicationIds>("GetPackageApplicationIds");
    quint32 size = 0;
    quint32 count = 0;
    ASSERT_EQ(ids(package, &size, nullptr, &count), 122);
    EXPECT_EQ(count, 2U);
    std::vector<unsigned char> buffer(size);
    ASSERT_EQ(ids(package, &size, buffer.data(), &count), 0);
    std::array<char16_t*, 2> begins{};
    std::memcpy(begins.data(), buffer.data(), sizeof begins);
    EXPECT_EQ(QString::fromUtf16(begins[0]), "X_abc!App");
    EXPECT_EQ(QString::fromUtf16(begins[1]), "X_abc!B");
    EXPECT_EQ(function<ClosePackage>("ClosePackageInfo")(package), 0);
}

TEST_F(AppPackagesTest, MayHaveNoApplications) {
    void* package = nullptr;
    ASSERT_EQ(function<OpenPackage>("OpenPackageInfoByFullName")(u"Y_1", 0, &package), 0);
    quint32 size = 0;
    quint32 count = 9;
    EXPECT_EQ(function<ApplicationIds>("GetPackageApplicationIds")(package, &size, nullptr, &count), 0);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(function<ClosePackage>("ClosePackageInfo")(package), 0);
}

TEST_F(AppPackagesTest, RefuseWrongNames) {
    void* package = nullptr;
    EXPECT_EQ(function<OpenPackage>("OpenPackageInfoByFullName")(u"none", 0, &package), 1168);
    EXPECT_EQ(function<OpenPackage>("OpenPackageInfoByFullName")(u"X_1", 1, &package), 87);
    EXPECT_EQ(package, nullptr);
    EXPECT_EQ(function<ClosePackage>("ClosePackageInfo")(nullptr), 87);
}

TEST_F(AppPackagesTest, AreUnknownToAnOlderSystem) {
    EXPECT_NE(Platform::kernelFunction("ClosePackageInfo"), nullptr);
    RecordingFolder old;
    old.choose();
    EXPECT_EQ(Platform::kernelFunction("ClosePackageInfo"), nullptr);
    EXPECT_EQ(Platform::kernelFunction("NoSuchFunction"), nullptr);
    EXPECT_GT(function<quint64 (*)()>("GetTickCount64")(), 0U);
}

} // namespace
