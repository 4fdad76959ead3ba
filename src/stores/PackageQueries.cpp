#include "stores/PackageQueries.h"

#include "platform/SystemFunctions.h"
#include "support/FirstOffered.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

template <class Function>
Function lookUp(const char* name) {
    return reinterpret_cast<Function>(Platform::kernelFunction(name));
}

FirstOffered<const PackageFunctions> kept;

std::unique_ptr<const PackageFunctions> lookUpAll() {
    return std::make_unique<const PackageFunctions>(
        PackageFunctions{lookUp<PackageFunctions::GetPackagesByPackageFamily>("GetPackagesByPackageFamily"),
                         lookUp<PackageFunctions::OpenPackageInfoByFullName>("OpenPackageInfoByFullName"),
                         lookUp<PackageFunctions::ClosePackageInfo>("ClosePackageInfo"),
                         lookUp<PackageFunctions::GetPackageApplicationIds>("GetPackageApplicationIds")});
}

using OpenPackage =
    std::unique_ptr<std::remove_pointer_t<PackageFunctions::PackageInfo>, PackageFunctions::ClosePackageInfo>;

/// No package when it can't be opened.
OpenPackage open(const std::u16string& fullName, const PackageFunctions& functions) {
    PackageFunctions::PackageInfo info = nullptr;
    const qint32 result = functions.openPackageInfoByFullName(fullName.c_str(), 0, &info);
    return {result == PackageFunctions::errorSuccess ? info : nullptr, functions.closePackageInfo};
}

/// The text that a system function reports; it may lie in the caller's buffer.
std::u16string copied(const char16_t* text) {
    return text == nullptr ? std::u16string() : std::u16string(text);
}

/// The buffer begins with pointers to the IDs, which follow them.
std::vector<std::u16string> idsIn(const std::vector<uchar>& buffer, quint32 count) {
    std::vector<std::u16string> ids;
    const char16_t* id = nullptr;
    for (std::size_t i = 0; i < count && buffer.size() >= (i + 1) * sizeof id; ++i) {
        std::memcpy(&id, buffer.data() + i * sizeof id, sizeof id);
        ids.push_back(copied(id));
    }
    return ids;
}

} // namespace

PackageFunctions systemPackageFunctions() {
    return kept.getOrOffer(lookUpAll);
}

std::u16string packageFullNameOf(const std::u16string& family, const PackageFunctions& functions) {
    if (functions.getPackagesByPackageFamily == nullptr) {
        return {};
    }
    quint32 count = 0;
    quint32 length = 0;
    const qint32 sizing = functions.getPackagesByPackageFamily(family.c_str(), &count, nullptr, &length, nullptr);
    if (sizing != PackageFunctions::errorInsufficientBuffer || count == 0) {
        return {};
    }

    std::vector<char16_t*> names(count, nullptr);
    std::vector<char16_t> buffer(std::size_t{length} + 1, u'\0');
    const qint32 result =
        functions.getPackagesByPackageFamily(family.c_str(), &count, names.data(), &length, buffer.data());
    if (result != PackageFunctions::errorSuccess || count == 0) {
        return {};
    }
    buffer[std::min(std::size_t{length}, buffer.size() - 1)] = u'\0';
    return copied(names.front());
}

std::u16string applicationIdOf(const std::u16string& fullName, const PackageFunctions& functions) {
    const std::vector<std::u16string> ids = applicationIdsOf(fullName, functions);
    return ids.empty() ? std::u16string() : ids.front();
}

std::vector<std::u16string> applicationIdsOf(const std::u16string& fullName, const PackageFunctions& functions) {
    if (fullName.empty() || functions.openPackageInfoByFullName == nullptr || functions.closePackageInfo == nullptr ||
        functions.getPackageApplicationIds == nullptr) {
        return {};
    }
    const OpenPackage package = open(fullName, functions);
    if (!package) {
        return {};
    }
    quint32 length = 0;
    quint32 count = 0;
    const qint32 sizing = functions.getPackageApplicationIds(package.get(), &length, nullptr, &count);
    if (sizing != PackageFunctions::errorInsufficientBuffer || length == 0) {
        return {};
    }

    std::vector<uchar> buffer(length);
    const qint32 result = functions.getPackageApplicationIds(package.get(), &length, buffer.data(), &count);
    return result == PackageFunctions::errorSuccess ? idsIn(buffer, count) : std::vector<std::u16string>();
}
