#include "common/TestPc.h"
#include "platform/Folders.h"
#include "platform/Registry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QSettings>
#include <QThread>

#include <windows.h>

#include <psapi.h>

#include <array>
#include <vector>

namespace {

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

HKEY rootHandle(Platform::RootKey root) {
    switch (root) {
    case Platform::RootKey::CurrentUser:
        return HKEY_CURRENT_USER;
    case Platform::RootKey::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case Platform::RootKey::Users:
        return HKEY_USERS;
    case Platform::RootKey::LocalMachine:
        break;
    }
    return HKEY_LOCAL_MACHINE;
}

REGSAM accessOf(const TestKey& key) {
    return KEY_ALL_ACCESS | static_cast<REGSAM>(key.view == 0 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY);
}

/// One more path component at a time: "A", "A\B", "A\B\C".
template <class Each>
void eachParent(const QString& path, QChar separator, Each each) {
    for (int end = path.indexOf(separator); end >= 0; end = path.indexOf(separator, end + 1)) {
        each(path.left(end));
    }
    each(path);
}

/// The path of the system below Wine; empty on Windows itself.
QString belowWine(const QString& path) {
    using UnixName = char*(CDECL*)(const wchar_t*);
    const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
    const auto unixName =
        reinterpret_cast<UnixName>(reinterpret_cast<void*>(::GetProcAddress(kernel, "wine_get_unix_file_name")));
    const QString folder = QFileInfo(path).path();
    return unixName != nullptr ? QString::fromUtf8(unixName(wide(folder))) + '/' + QFileInfo(path).fileName()
                               : QString();
}

/// Starts a program of the system below Wine, which makes and removes no links itself. False on Windows itself.
bool runBelowWine(const QString& program, const QStringList& arguments) {
    return !belowWine("C:\\").isEmpty() && QProcess::startDetached("\\\\?\\unix\\bin\\" + program, arguments);
}

void waitUntil(const QString& path, bool exists) {
    for (int i = 0; i < 3000 && (::GetFileAttributesW(wide(path)) != INVALID_FILE_ATTRIBUTES) != exists; ++i) {
        QThread::msleep(10);
    }
}

} // namespace

/// The PC that the test runs on, and what to take off it again.
class TestPc::World {
public:
    World() = default;

    ~World() {
        for (const QString& choice : m_choices) {
            m_settings.remove(choice);
        }
        for (const QByteArray& variable : m_variables) {
            qunsetenv(variable.constData());
        }
        for (auto value = m_values.rbegin(); value != m_values.rend(); ++value) {
            const HKEY key = open(value->first);
            ::RegDeleteValueW(key, wide(value->second));
            ::RegCloseKey(key);
        }
        for (auto key = m_keys.rbegin(); key != m_keys.rend(); ++key) {
            ::RegDeleteKeyExW(rootHandle(key->root), wide(key->path), accessOf(*key) & ~REGSAM(KEY_ALL_ACCESS), 0);
        }
        for (const QString& link : m_links) {
            if (!runBelowWine("rm", {"-rf", belowWine(link)})) {
                ::RemoveDirectoryW(wide(link));
            }
            waitUntil(link, false);
        }
        for (auto path = m_paths.rbegin(); path != m_paths.rend(); ++path) {
            // Not by Qt, to which a folder named like a shortcut is one.
            if (::RemoveDirectoryW(wide(*path)) == 0 && ::DeleteFileW(wide(*path)) == 0) {
                QDir(*path).removeRecursively();
            }
        }
    }

    /// The key, made where it is missing.
    HKEY make(const TestKey& key) {
        eachParent(key.path, '\\', [this, &key](const QString& path) {
            const TestKey parent{key.root, path, key.view};
            HKEY handle = nullptr;
            DWORD disposition = 0;
            if (::RegCreateKeyExW(rootHandle(key.root), wide(path), 0, nullptr, 0, accessOf(key), nullptr, &handle,
                                  &disposition) != ERROR_SUCCESS) {
                qFatal("cannot make the key %s", qUtf8Printable(path));
            }
            ::RegCloseKey(handle);
            if (disposition == REG_CREATED_NEW_KEY) {
                m_keys.push_back(parent);
            }
        });
        return open(key);
    }

    void setValue(const TestKey& key, const QString& name, DWORD type, const void* data, std::size_t size) {
        const HKEY handle = make(key);
        if (::RegSetValueExW(handle, wide(name), 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size)) !=
            ERROR_SUCCESS) {
            qFatal("cannot set the value %s", qUtf8Printable(name));
        }
        ::RegCloseKey(handle);
        m_values.emplace_back(key, name);
    }

    void makeFolder(const QString& path) {
        eachParent(QDir::fromNativeSeparators(path), '/', [this](const QString& folder) {
            if (!QFileInfo::exists(folder + '/') && QDir().mkdir(folder)) {
                m_paths.push_back(folder);
            }
        });
    }

    void remember(const QString& path) { m_paths.push_back(path); }

    void rememberLink(const QString& path) { m_links.push_back(path); }

    void chooseFolder(const QString& setting, const QString& folder) {
        m_settings.setValue(setting, folder);
        m_settings.sync();
        m_choices.push_back(setting);
    }

    void setVariable(const QByteArray& name, const QByteArray& value) {
        qputenv(name.constData(), value);
        m_variables.push_back(name);
    }

private:
    static HKEY open(const TestKey& key) {
        HKEY handle = nullptr;
        if (::RegOpenKeyExW(rootHandle(key.root), wide(key.path), 0, accessOf(key), &handle) != ERROR_SUCCESS) {
            qFatal("cannot open the key %s", qUtf8Printable(key.path));
        }
        return handle;
    }

    std::vector<std::pair<TestKey, QString>> m_values;
    std::vector<TestKey> m_keys;
    std::vector<QString> m_paths;
    std::vector<QString> m_links;
    std::vector<QByteArray> m_variables;
    QSettings m_settings{QSettings::UserScope, "Veltrane", "Quorvan"}; // as the host opens them
    QStringList m_choices;
};

bool TestPc::mayBeChanged() {
    return qgetenv("LURULUDRI_TESTS_MAY_CHANGE_PC") == "1";
}

TestPc::TestPc()
    : m_world(std::make_unique<World>()) {
    clearLogs();
}

TestPc::~TestPc() = default;

void TestPc::key(const TestKey& key) {
    ::RegCloseKey(m_world->make(key));
}

void TestPc::value(const TestKey& key, const QString& name, const QString& text) {
    m_world->setValue(key, name, REG_SZ, text.utf16(), (static_cast<std::size_t>(text.size()) + 1) * sizeof(wchar_t));
}

void TestPc::number(const TestKey& key, const QString& name, quint32 number) {
    m_world->setValue(key, name, REG_DWORD, &number, sizeof number);
}

void TestPc::value(const TestKey& key, const QString& name, quint32 type, const QByteArray& bytes) {
    m_world->setValue(key, name, type, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

void TestPc::file(const QString& path, const QByteArray& contents) {
    m_world->makeFolder(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("cannot write %s", qUtf8Printable(path));
    }
    m_world->remember(path);
}

void TestPc::folder(const QString& path) {
    m_world->makeFolder(path);
}

void TestPc::files(const QString& folder, int count) {
    m_world->makeFolder(folder); // which goes with all that is in it
    // Wine reads the whole folder for each file that is new there.
    const QString making =
        QString("cd '%1' && seq -f %.0f.txt 0 %2 | xargs touch").arg(belowWine(folder)).arg(count - 1);
    const QString last = folder + QString("\\%1.txt").arg(count - 1);
    if (runBelowWine("sh", {"-c", making})) {
        waitUntil(last, true);
        m_world->rememberLink(folder);
        return;
    }
    for (int i = 0; i < count; ++i) {
        const QString path = folder + QString("\\%1.txt").arg(i);
        ::CloseHandle(::CreateFileW(wide(path), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
    }
}

void TestPc::shortcut(const QString& path, const QString& target) {
    m_world->makeFolder(QFileInfo(path).path());
    if (!QFile::link(target, path)) {
        qFatal("cannot make the shortcut %s", qUtf8Printable(path));
    }
    m_world->remember(path);
}

void TestPc::link(const QString& path, const QString& folder) {
    m_world->makeFolder(QFileInfo(path).path());
    if (!runBelowWine("ln", {"-s", belowWine(folder), belowWine(path)})) {
        QProcess::execute("cmd.exe", {"/C", "mklink", "/J", path, folder});
    }
    waitUntil(path, true);
    m_world->rememberLink(path);
}

void TestPc::removeFile(const QString& path) {
    QFile::remove(path);
}

void TestPc::enlarge(const QString& path, qint64 size) {
    QFile::resize(path, size);
}

void TestPc::hide(const QString& path) {
    ::SetFileAttributesW(wide(path), ::GetFileAttributesW(wide(path)) | FILE_ATTRIBUTE_HIDDEN);
}

void TestPc::makeSystem(const QString& path) {
    ::SetFileAttributesW(wide(path), ::GetFileAttributesW(wide(path)) | FILE_ATTRIBUTE_SYSTEM);
}

void TestPc::shellFolder(int csidl, const QString& path) {
    const QMap<int, std::pair<Platform::RootKey, QString>> names{
        {Platform::csidlStartMenu, {Platform::RootKey::CurrentUser, "Start Menu"}},
        {Platform::csidlCommonStartMenu, {Platform::RootKey::LocalMachine, "Common Start Menu"}},
        {Platform::csidlCommonAppData, {Platform::RootKey::LocalMachine, "Common AppData"}}};
    const QString key = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";
    value({names[csidl].first, key}, names[csidl].second, path);
}

void TestPc::environment(const QString& name, const QString& value) {
    m_world->setVariable(name.toLocal8Bit(), value.toLocal8Bit());
}

void TestPc::userChoice(const QString& key, const QString& folder) {
    m_world->chooseFolder("UserProvidedLocations/" + key, folder);
}

bool TestPc::package(const QString& /*family*/, const QString& /*fullName*/, const QString& /*applicationId*/) {
    return false; // as Windows installs only what is signed, and Wine nothing
}

qint64 TestPc::peakMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<qint64>(counters.PeakWorkingSetSize);
}

QString TestPc::volume(QChar drive) const {
    std::array<wchar_t, Platform::maxPath> name{};
    const QString root = drive + QString(":\\");
    if (::GetVolumeNameForVolumeMountPointW(wide(root), name.data(), Platform::maxPath) == 0) {
        qFatal("drive %s has no volume", qUtf8Printable(root));
    }
    return QString::fromWCharArray(name.data());
}
