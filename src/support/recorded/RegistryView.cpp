#include "support/recorded/RegistryView.h"

#include <algorithm>
#include <iterator>

namespace Recorded {

namespace {

// learn.microsoft.com/windows/win32/winprog64/shared-registry-keys, the column for Windows 7 and later.
constexpr const char* sharedSoftware[] = {
    "Clients",
    "Microsoft\\COM3",
    "Microsoft\\Cryptography\\Calais\\Current",
    "Microsoft\\Cryptography\\Calais\\Readers",
    "Microsoft\\Cryptography\\Services",
    "Microsoft\\CTF\\SystemShared",
    "Microsoft\\CTF\\TIP",
    "Microsoft\\DFS",
    "Microsoft\\Driver Signing",
    "Microsoft\\EnterpriseCertificates",
    "Microsoft\\EventSystem",
    "Microsoft\\MSMQ",
    "Microsoft\\Non-Driver Signing",
    "Microsoft\\Notepad\\DefaultFonts",
    "Microsoft\\OLE",
    "Microsoft\\RAS",
    "Microsoft\\RPC",
    "Microsoft\\Shared Tools\\MSInfo",
    "Microsoft\\SystemCertificates",
    "Microsoft\\TermServLicensing",
    "Microsoft\\Transaction Server",
    "Microsoft\\Windows\\CurrentVersion\\App Paths",
    "Microsoft\\Windows\\CurrentVersion\\Control Panel\\Cursors\\Schemes",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\DriveIcons",
    "Microsoft\\Windows\\CurrentVersion\\Explorer\\KindMap",
    "Microsoft\\Windows\\CurrentVersion\\Group Policy",
    "Microsoft\\Windows\\CurrentVersion\\Policies",
    "Microsoft\\Windows\\CurrentVersion\\PreviewHandlers",
    "Microsoft\\Windows\\CurrentVersion\\Setup",
    "Microsoft\\Windows\\CurrentVersion\\Telephony\\Locations",
    "Microsoft\\Windows NT\\CurrentVersion\\Console",
    "Microsoft\\Windows NT\\CurrentVersion\\FontDpi",
    "Microsoft\\Windows NT\\CurrentVersion\\FontLink",
    "Microsoft\\Windows NT\\CurrentVersion\\FontMapper",
    "Microsoft\\Windows NT\\CurrentVersion\\Fonts",
    "Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes",
    "Microsoft\\Windows NT\\CurrentVersion\\Gre_Initialize",
    "Microsoft\\Windows NT\\CurrentVersion\\Image File Execution Options",
    "Microsoft\\Windows NT\\CurrentVersion\\LanguagePack",
    "Microsoft\\Windows NT\\CurrentVersion\\NetworkCards",
    "Microsoft\\Windows NT\\CurrentVersion\\Perflib",
    "Microsoft\\Windows NT\\CurrentVersion\\Ports",
    "Microsoft\\Windows NT\\CurrentVersion\\Print",
    "Microsoft\\Windows NT\\CurrentVersion\\ProfileList",
    "Microsoft\\Windows NT\\CurrentVersion\\Time Zones",
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
        return joined(software, joined(classes, storedClassesPath(rest.mid(1), RegistryView::Bits32)));
    }
    return joined(software, isShared(rest) ? rest : joined(wow64Node, rest));
}

QStringList storedUserPath(const QStringList& path, RegistryView view) {
    if (!isNamed(path, 0, software) || !isNamed(path, 1, classes)) {
        return path;
    }
    return path.mid(0, 2) + storedClassesPath(path.mid(2), view);
}

} // namespace Recorded
