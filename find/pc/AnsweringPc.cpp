#include "find/pc/AnsweringPc.h"

#include "find/pc/System.h"
#include "platform/Listing.h"
#include "platform/Process.h"
#include "platform/Registry.h"
#include "platform/Settings.h"
#include "recordings/AnsiText.h"
#include "recordings/DrivePath.h"
#include "recordings/Recording.h"
#include "recordings/WindowsNames.h"

#include <QSysInfo>

#include <array>
#include <optional>

namespace Find {

namespace {

/// In the form that has no longest length and means each name as it is.
QString literalPath(const Recordings::DrivePath& path) {
    const QString drive = QLatin1String("\\\\?\\") + QString(path.letter) + QLatin1Char(':');
    return (QStringList{drive} + path.names).join(QLatin1Char('\\'));
}

Platform::KeyHandle openKey(Platform::RootKey root, const QString& path) {
    Platform::KeyHandle key;
    Platform::openKey(root, path, Platform::keyRead | Platform::keyWow64_64Key, key);
    return key;
}

QStringList subKeysOf(const Platform::KeyHandle& key) {
    QStringList names;
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

std::vector<FolderEntry> listFolder(const QString& folder) {
    std::vector<FolderEntry> entries;
    const std::optional<Recordings::DrivePath> path = Recordings::DrivePath::parse(folder);
    if (!path) {
        return entries;
    }
    Platform::FolderEntry entry;
    const Platform::ListingHandle listing = Platform::firstEntry(literalPath(*path), entry);
    for (bool isThere = listing != nullptr; isThere; isThere = Platform::nextEntry(listing, entry)) {
        if (entry.name != QLatin1String(".") && entry.name != QLatin1String("..")) {
            entries.push_back({entry.name, (entry.attributes & Platform::attributeFolder) != 0,
                               (entry.attributes & Platform::attributeLink) != 0});
        }
    }
    return entries;
}

QStringList subFoldersOf(const QString& folder) {
    QStringList names;
    for (const FolderEntry& entry : listFolder(folder)) {
        if (entry.isFolder) {
            names.append(entry.name);
        }
    }
    return names;
}

QProcessEnvironment environmentOfPc() {
    return Platform::systemEnvironment();
}

Recordings::NameSources namesOfPc() {
    const QProcessEnvironment environment = environmentOfPc();
    Recordings::NameSources names = {environment.value(QStringLiteral("USERNAME")),
                                     environment.value(QStringLiteral("USERPROFILE")),
                                     {environment.value(QStringLiteral("COMPUTERNAME"))}};
    if (isPcItself()) {
        names.machine.append(QSysInfo::machineHostName());
    }
    return names;
}

int codePageOfPc() {
    const Platform::KeyHandle key =
        openKey(Platform::RootKey::LocalMachine, QStringLiteral(R"(SYSTEM\CurrentControlSet\Control\Nls\CodePage)"));
    std::array<char16_t, 16> text{};
    quint32 type = 0;
    quint32 size = sizeof text - sizeof(char16_t);
    const Platform::ErrorCode status = Platform::queryValue(key, QStringLiteral("ACP"), type, text.data(), size);
    const int number = status == Platform::errorSuccess ? QString::fromUtf16(text.data()).toInt() : 0;
    return Recordings::isKnownCodePage(number) ? number : Recordings::westernCodePage;
}

QStringList registeredPackageFamilies() {
    QStringList families;
    const QStringList fullNames = subKeysOf(openKey(Platform::RootKey::CurrentUser, Recordings::packagesKey()));
    for (const QString& fullName : fullNames) {
        const QString family = Recordings::familyOfPackage(fullName);
        if (!family.isEmpty()) {
            families.append(family);
        }
    }
    families.removeDuplicates();
    return families;
}

QStringList userChoiceKeys() {
    return Platform::openUserLocations()->allKeys();
}

bool isSameUserChoice(const QString& key, const QString& other) {
    const bool isCaseIgnored = isPcItself() || !qEnvironmentVariableIsEmpty(Recordings::environmentVariable);
    return isCaseIgnored ? Recordings::foldName(key) == Recordings::foldName(other) : key == other;
}

} // namespace Find
