#pragma once

#include "stores/PackageQueries.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// A package as the system knows it.
struct FakePackage {
    std::u16string family;
    std::u16string fullName;
    std::vector<std::u16string> applicationIds;
};

/// The system's package functions over a list of packages: they want the same sizes, write the same buffers and fail
/// with the same codes. One at a time.
class FakePackages {
public:
    explicit FakePackages(std::vector<FakePackage> packages);
    ~FakePackages();

    /// What the code under test gets.
    static PackageFunctions functions();

    std::vector<FakePackage> packages;

    /// Called before each function does its work; what it returns, if not 0, is the function's result.
    std::function<qint32(const std::string& function)> onCall;

    /// The names of the functions called, in order.
    std::vector<std::string> calls;

    /// The sizes that came with each call that tells or fills a buffer.
    struct Sizes {
        quint32 count;
        quint32 length;
    };

    std::vector<Sizes> sizes;

    std::optional<quint32> idBytes; ///< claimed for the IDs, and the buffer is then left alone

    int openInfos = 0;
    bool reportsNoText = false;  ///< succeeds with null pointers to the texts
    bool reportsNoCount = false; ///< succeeds with a count of 0, whatever it writes
    qint32 lateResult = 0;       ///< returned by the functions that have done their work
    bool endsNoText = false;     ///< writes the full names without their ends, after filling the buffer with rubbish

private:
    FakePackages(const FakePackages&) = delete;
    FakePackages& operator=(const FakePackages&) = delete;

    qint32 called(const std::string& function);

    static qint32 getPackagesByPackageFamily(const char16_t* family, quint32* count, char16_t** fullNames,
                                             quint32* bufferLength, char16_t* buffer);
    static qint32 openPackageInfoByFullName(const char16_t* fullName, quint32 reserved,
                                            PackageFunctions::PackageInfo* info);
    static qint32 closePackageInfo(PackageFunctions::PackageInfo info);
    static qint32 getPackageApplicationIds(PackageFunctions::PackageInfo info, quint32* bufferLength, uchar* buffer,
                                           quint32* count);

    static FakePackages* current;
};
