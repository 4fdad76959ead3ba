#include "find/record/InstalledPackages.h"

#include "platform/Registry.h"

#include <array>

namespace Find {

namespace {

/// Name, version, architecture, resource and the publisher's hash; the resource is empty as a rule.
constexpr int partsOfFullName = 5;

QStringList registeredFullNames() {
    QStringList names;
    Platform::KeyHandle key;
    if (Platform::openKey(Platform::RootKey::CurrentUser, packagesKey(), Platform::keyRead | Platform::keyWow64_64Key,
                          key) != Platform::errorSuccess) {
        return names;
    }
    for (quint32 index = 0;; ++index) {
        std::array<char16_t, 256> name{};
        auto length = static_cast<quint32>(name.size());
        const Platform::ErrorCode status = Platform::enumKey(key, index, name.data(), length);
        if (status == Platform::errorSuccess) {
            names.append(QString::fromUtf16(name.data(), static_cast<int>(length)));
        } else if (status != Platform::errorMoreData) {
            return names;
        }
    }
}

} // namespace

QString packagesKey() {
    return QStringLiteral(R"(Software\Classes\Local Settings\Software\Microsoft\Windows\CurrentVersion)"
                          R"(\AppModel\Repository\Packages)");
}

QString familyOfPackage(const QString& fullName) {
    const QStringList parts = fullName.split(QLatin1Char('_'));
    return parts.size() == partsOfFullName && !parts.first().isEmpty() && !parts.last().isEmpty()
               ? parts.first() + QLatin1Char('_') + parts.last()
               : QString();
}

QStringList installedPackageFamilies() {
    QStringList families;
    const QStringList fullNames = registeredFullNames();
    for (const QString& fullName : fullNames) {
        const QString family = familyOfPackage(fullName);
        if (!family.isEmpty()) {
            families.append(family);
        }
    }
    families.removeDuplicates();
    return families;
}

} // namespace Find
