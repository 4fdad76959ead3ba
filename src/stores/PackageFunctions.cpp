#include "stores/PackageFunctions.h"

#include "platform/SystemFunctions.h"

namespace {

template <class Function>
Function lookUp(const char* name) {
    return reinterpret_cast<Function>(Platform::kernelFunction(name));
}

PackageFunctions::GetPackagesByPackageFamily getPackagesByPackageFamily() {
    static const auto kept = lookUp<PackageFunctions::GetPackagesByPackageFamily>("GetPackagesByPackageFamily");
    return kept;
}

PackageFunctions::OpenPackageInfoByFullName openPackageInfoByFullName() {
    static const auto kept = lookUp<PackageFunctions::OpenPackageInfoByFullName>("OpenPackageInfoByFullName");
    return kept;
}

PackageFunctions::ClosePackageInfo closePackageInfo() {
    static const auto kept = lookUp<PackageFunctions::ClosePackageInfo>("ClosePackageInfo");
    return kept;
}

PackageFunctions::GetPackageApplicationIds getPackageApplicationIds() {
    static const auto kept = lookUp<PackageFunctions::GetPackageApplicationIds>("GetPackageApplicationIds");
    return kept;
}

} // namespace

PackageFunctions systemPackageFunctions() {
    return {getPackagesByPackageFamily(), openPackageInfoByFullName(), closePackageInfo(), getPackageApplicationIds()};
}
