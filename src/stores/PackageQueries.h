#pragma once

#include <QtGlobal>

#include <string>
#include <vector>

/// The system's functions about app packages, as learn.microsoft.com/windows/win32/api/appmodel documents them. One
/// that the system lacks is null.
struct PackageFunctions {
    static constexpr qint32 errorSuccess = 0;
    static constexpr qint32 errorInsufficientBuffer = 122;

    /// Owned by who opened it, until closed.
    using PackageInfo = void*;

    using GetPackagesByPackageFamily = qint32 (*)(const char16_t* family, quint32* count, char16_t** fullNames,
                                                  quint32* bufferLength, char16_t* buffer);
    using OpenPackageInfoByFullName = qint32 (*)(const char16_t* fullName, quint32 reserved, PackageInfo* info);
    using ClosePackageInfo = qint32 (*)(PackageInfo info);
    using GetPackageApplicationIds = qint32 (*)(PackageInfo info, quint32* bufferLength, uchar* buffer, quint32* count);

    GetPackagesByPackageFamily getPackagesByPackageFamily = nullptr;
    OpenPackageInfoByFullName openPackageInfoByFullName = nullptr;
    ClosePackageInfo closePackageInfo = nullptr;
    GetPackageApplicationIds getPackageApplicationIds = nullptr;
};

/// The functions of this system. Each is looked up at the first call and kept for the process, also when it is missing;
/// any thread may call.
PackageFunctions systemPackageFunctions();

/// The full name of the first installed package of a family. Empty when there is none, and when the system does not
/// know packages.
std::u16string packageFullNameOf(const std::u16string& family, const PackageFunctions& functions);

/// The user model IDs of the applications in a package. Empty when there is none, and when the system does not know
/// packages.
std::vector<std::u16string> applicationIdsOf(const std::u16string& fullName, const PackageFunctions& functions);

/// The first of them, or an empty text.
std::u16string applicationIdOf(const std::u16string& fullName, const PackageFunctions& functions);
