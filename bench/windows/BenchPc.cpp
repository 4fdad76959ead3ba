#include "BenchPc.h"

#include "platform/Folders.h"
#include "platform/windows/WideText.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <array>

class BenchPc::World {
public:
    QString folder; ///< that was made last
    QString place;  ///< how it is named where that takes no time
};

namespace {

HKEY handleOf(Platform::RootKey root) {
    switch (root) {
    case Platform::RootKey::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case Platform::RootKey::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    default:
        return HKEY_CURRENT_USER;
    }
}

/// As the system below Wine names it, where there is one: Wine itself looks through a whole folder for each new name,
/// lest it differ from another by letter case only.
QString placeOf(const QString& folder) {
    using UnixName = char*(CDECL*)(const wchar_t*);
    const auto unixName = reinterpret_cast<UnixName>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    const QString native = QDir::toNativeSeparators(folder);
    if (unixName == nullptr) {
        return native;
    }
    return QDir::toNativeSeparators(QStringLiteral("\\\\?\\unix") +
                                    QString::fromUtf8(unixName(Platform::wide(native))));
}

} // namespace

BenchPc::BenchPc()
    : m_world(std::make_unique<World>()) {
    if (qgetenv("LURULUDRI_TESTS_MAY_CHANGE_PC") != "1") {
        qFatal("The benchmarks write to the registry and the drives of the PC that they run on.\n"
               "Set LURULUDRI_TESTS_MAY_CHANGE_PC to 1 on a PC that can be thrown away.");
    }
}

BenchPc::~BenchPc() = default;

void BenchPc::key(Platform::RootKey root, const QString& path, quint32 view, const Values& values) {
    const auto access = static_cast<REGSAM>(KEY_ALL_ACCESS | (view == 0 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY));
    HKEY key = nullptr;
    if (::RegCreateKeyExW(handleOf(root), Platform::wide(path), 0, nullptr, 0, access, nullptr, &key, nullptr) !=
        ERROR_SUCCESS) {
        qFatal("cannot make the key %s", qUtf8Printable(path));
    }
    for (const auto& [name, text] : values) {
        const auto bytes = static_cast<DWORD>((text.size() + 1) * static_cast<int>(sizeof(wchar_t)));
        ::RegSetValueExW(key, Platform::wide(name), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.utf16()), bytes);
    }
    ::RegCloseKey(key);
}

void BenchPc::file(const QString& path, const QByteArray& contents) {
    const QFileInfo file(path);
    if (file.path() != m_world->folder) {
        QDir().mkpath(file.path());
        m_world->folder = file.path();
        m_world->place = placeOf(file.path());
    }
    const HANDLE handle = ::CreateFileW(Platform::wide(m_world->place + QLatin1Char('\\') + file.fileName()),
                                        GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    if (::WriteFile(handle, contents.constData(), static_cast<DWORD>(contents.size()), &written, nullptr) == 0) {
        qFatal("cannot write %s", qUtf8Printable(path));
    }
    ::CloseHandle(handle);
}

void BenchPc::userChoice(const QString& key, const QString& folder) {
    this->key(Platform::RootKey::CurrentUser, QStringLiteral("Software\\Veltrane\\Quorvan\\UserProvidedLocations"), 0,
              {{key, folder}});
}

QString BenchPc::shellFolder(int csidl) const {
    std::array<char16_t, Platform::maxPath> path{};
    Platform::folderPath(csidl, path.data());
    return QString::fromUtf16(path.data());
}

void BenchPc::use() {}
