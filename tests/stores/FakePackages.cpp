#include "stores/FakePackages.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr qint32 errorInvalidParameter = 87;
constexpr qint32 errorNotFound = 1168;

using Texts = std::vector<std::u16string>;

/// With the end of each.
std::size_t lengthOf(const Texts& texts) {
    std::size_t length = 0;
    for (const std::u16string& text : texts) {
        length += text.size() + 1;
    }
    return length;
}

/// Writes the texts, and where each begins to `begins`, which may lie anywhere.
void write(const Texts& texts, char16_t* buffer, void* begins, bool reportsNoText, std::size_t end = 1) {
    auto* begin = static_cast<uchar*>(begins);
    for (const std::u16string& text : texts) {
        const char16_t* const reported = reportsNoText ? nullptr : buffer;
        std::memcpy(begin, &reported, sizeof reported);
        begin += sizeof reported;
        std::copy_n(text.c_str(), text.size() + end, buffer);
        buffer += text.size() + end;
    }
}

} // namespace

FakePackages* FakePackages::current = nullptr;

FakePackages::FakePackages(std::vector<FakePackage> installed)
    : packages(std::move(installed)) {
    current = this;
}

FakePackages::~FakePackages() {
    current = nullptr;
}

PackageFunctions FakePackages::functions() {
    return {getPackagesByPackageFamily, openPackageInfoByFullName, closePackageInfo, getPackageApplicationIds};
}

qint32 FakePackages::called(const std::string& function) {
    calls.push_back(function);
    return onCall ? onCall(function) : PackageFunctions::errorSuccess;
}

qint32 FakePackages::getPackagesByPackageFamily(const char16_t* family, quint32* count, char16_t** fullNames,
                                                quint32* bufferLength, char16_t* buffer) {
    current->sizes.push_back({*count, *bufferLength});
    if (const qint32 failure = current->called("GetPackagesByPackageFamily")) {
        return failure;
    }
    if ((*count > 0 && fullNames == nullptr) || (*bufferLength > 0 && buffer == nullptr)) {
        return errorInvalidParameter;
    }
    Texts names;
    for (const FakePackage& package : current->packages) {
        if (package.family == family) {
            names.push_back(package.fullName);
        }
    }
    const std::size_t end = current->endsNoText ? 0 : 1;
    const std::size_t needed = lengthOf(names) - (1 - end) * names.size();
    const std::size_t given = *bufferLength;
    const bool fits = *count >= names.size() && given >= needed;
    *count = static_cast<quint32>(names.size());
    *bufferLength = static_cast<quint32>(needed);
    if (!fits) {
        return PackageFunctions::errorInsufficientBuffer;
    }
    std::fill_n(buffer, current->endsNoText ? given : 0, u'x');
    write(names, buffer, fullNames, current->reportsNoText, end);
    *count = current->reportsNoCount ? 0 : *count;
    return current->lateResult;
}

qint32 FakePackages::openPackageInfoByFullName(const char16_t* fullName, quint32 reserved,
                                               PackageFunctions::PackageInfo* info) {
    if (const qint32 failure = current->called("OpenPackageInfoByFullName")) {
        return failure;
    }
    if (reserved != 0 || info == nullptr) {
        return errorInvalidParameter;
    }
    const auto package = std::find_if(current->packages.begin(), current->packages.end(),
                                      [fullName](const FakePackage& known) { return known.fullName == fullName; });
    if (package == current->packages.end()) {
        return errorNotFound;
    }
    ++current->openInfos;
    *info = &*package;
    return current->lateResult;
}

qint32 FakePackages::closePackageInfo(PackageFunctions::PackageInfo) {
    const qint32 failure = current->called("ClosePackageInfo");
    --current->openInfos;
    return failure;
}

qint32 FakePackages::getPackageApplicationIds(PackageFunctions::PackageInfo info, quint32* bufferLength, uchar* buffer,
                                              quint32* count) {
    current->sizes.push_back({*count, *bufferLength});
    if (const qint32 failure = current->called("GetPackageApplicationIds")) {
        return failure;
    }
    if (info == nullptr || (*bufferLength > 0 && buffer == nullptr)) {
        return errorInvalidParameter;
    }
    const Texts& ids = static_cast<const FakePackage*>(info)->applicationIds;
    const std::size_t pointers = ids.size() * sizeof(char16_t*);
    const std::size_t needed = current->idBytes.value_or(pointers + lengthOf(ids) * sizeof(char16_t));
    const bool fits = *bufferLength >= needed;
    *bufferLength = static_cast<quint32>(needed);
    *count = static_cast<quint32>(ids.size());
    if (!fits) {
        return PackageFunctions::errorInsufficientBuffer;
    }
    if (current->idBytes) {
        return PackageFunctions::errorSuccess;
    }
    write(ids, reinterpret_cast<char16_t*>(buffer + pointers), buffer, current->reportsNoText);
    *count = current->reportsNoCount ? 0 : *count;
    return current->lateResult;
}
