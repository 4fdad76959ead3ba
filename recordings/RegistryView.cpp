#include "recordings/RegistryView.h"

#include <algorithm>
#include <iterator>

namespace Recordings {

namespace {

// learn.microsoft.com/windows/win32/winprog64/shared-registry-keys, the column for Windows 7 and later.
constexpr const char* sharedSoftware[] = {
    "Clients",
    R"(Microsoft\COM3)",
    R"(Microsoft\Cryptography\Calais\Current)",
    R"(Microsoft\Cryptography\Calais\Readers)",
    R"(Microsoft\Cryptography\Services)",
    R"(Microsoft\CTF\SystemShared)",
    R"(Microsoft\CTF\TIP)",
    R"(Microsoft\DFS)",
    R"(Microsoft\Driver Signing)",
    R"(Microsoft\EnterpriseCertificates)",
    R"(Microsoft\EventSystem)",
    R"(Microsoft\MSMQ)",
    R"(Microsoft\Non-Driver Signing)",
    R"(Microsoft\Notepad\DefaultFonts)",
    R"(Microsoft\OLE)",
    R"(Microsoft\RAS)",
    R"(Microsoft\RPC)",
    R"(Microsoft\Shared Tools\MSInfo)",
    R"(Microsoft\SystemCertificates)",
    R"(Microsoft\TermServLicensing)",
    R"(Microsoft\Transaction Server)",
    R"(Microsoft\Windows\CurrentVersion\App Paths)",
    R"(Microsoft\Windows\CurrentVersion\Control Panel\Cursors\Schemes)",
    R"(Microsoft\Windows\CurrentVersion\Explorer\AutoplayHandlers)",
    R"(Microsoft\Windows\CurrentVersion\Explorer\DriveIcons)",
    R"(Microsoft\Windows\CurrentVersion\Explorer\KindMap)",
    R"(Microsoft\Windows\CurrentVersion\Group Policy)",
    R"(Microsoft\Windows\CurrentVersion\Policies)",
    R"(Microsoft\Windows\CurrentVersion\PreviewHandlers)",
    R"(Microsoft\Windows\CurrentVersion\Setup)",
    R"(Microsoft\Windows\CurrentVersion\Telephony\Locations)",
    R"(Microsoft\Windows NT\CurrentVersion\Console)",
    R"(Microsoft\Windows NT\CurrentVersion\FontDpi)",
    R"(Microsoft\Windows NT\CurrentVersion\FontLink)",
    R"(Microsoft\Windows NT\CurrentVersion\FontMapper)",
    R"(Microsoft\Windows NT\CurrentVersion\Fonts)",
    R"(Microsoft\Windows NT\CurrentVersion\FontSubstitutes)",
    R"(Microsoft\Windows NT\CurrentVersion\Gre_Initialize)",
    R"(Microsoft\Windows NT\CurrentVersion\Image File Execution Options)",
    R"(Microsoft\Windows NT\CurrentVersion\LanguagePack)",
    R"(Microsoft\Windows NT\CurrentVersion\NetworkCards)",
    R"(Microsoft\Windows NT\CurrentVersion\Perflib)",
    R"(Microsoft\Windows NT\CurrentVersion\Ports)",
    R"(Microsoft\Windows NT\CurrentVersion\Print)",
    R"(Microsoft\Windows NT\CurrentVersion\ProfileList)",
    R"(Microsoft\Windows NT\CurrentVersion\Time Zones)",
    "Policies",
    "RegisteredApplications",
};

constexpr const char* separateClasses[] = {"CLSID", "DirectShow", "Interface", "Media Type", "MediaFoundation"};

constexpr const char* software = "Software";
constexpr const char* classes = "Classes";
constexpr const char* wow64Node = "Wow6432Node";

bool isNamed(const QStringList& path, int index, const char* name) {
    return index < path.size() && path.at(index).compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

bool isShared(const QStringList& path) {
    const QString text = path.join(QLatin1Char('\\')) + QLatin1Char('\\');
    return std::any_of(std::begin(sharedSoftware), std::end(sharedSoftware), [&text](const char* key) {
        const QLatin1String name(key);
        return text.startsWith(name, Qt::CaseInsensitive) && text.at(name.size()) == QLatin1Char('\\');
    });
}

QStringList joined(const char* first, const QStringList& rest) {
    return QStringList{QLatin1String(first)} + rest;
}

} // namespace

QStringList storedClassesPath(const QStringList& path, RegistryView view) {
    const bool isSeparate = std::any_of(std::begin(separateClasses), std::end(separateClasses),
                                        [&path](const char* name) { return isNamed(path, 0, name); });
    return isSeparate && view == RegistryView::Bits32 ? joined(wow64Node, path) : path;
}

QStringList storedMachinePath(const QStringList& path, RegistryView view) {
    if (!isNamed(path, 0, software)) {
        return path;
    }
    const bool namesNode = isNamed(path, 1, wow64Node);
    if (!namesNode && view == RegistryView::Bits64) {
        return path;
    }
    const QStringList rest = path.mid(namesNode ? 2 : 1);
    if (isNamed(rest, 0, classes)) {
        return path.mid(0, 1) + rest.mid(0, 1) + storedClassesPath(rest.mid(1), RegistryView::Bits32);
    }
    if (isShared(rest)) {
        return path.mid(0, 1) + rest;
    }
    return namesNode ? path : path.mid(0, 1) + joined(wow64Node, rest);
}

QStringList storedUserPath(const QStringList& path, RegistryView view) {
    if (!isNamed(path, 0, software) || !isNamed(path, 1, classes)) {
        return path;
    }
    return path.mid(0, 2) + storedClassesPath(path.mid(2), view);
}

} // namespace Recordings
