#include "Bare.h"

#include "platform/Folders.h"

#include <windows.h>

#include <shlobj.h>

#include <array>

#include <sys/stat.h>
#include <sys/types.h>

namespace Bare {

namespace {

const wchar_t* wide(const Text& text) {
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

Text textOf(const wchar_t* text) {
    return reinterpret_cast<const char16_t*>(text);
}

HKEY open(const Key& key) {
    HKEY root = HKEY_LOCAL_MACHINE;
    if (key.root != Platform::RootKey::LocalMachine) {
        root = key.root == Platform::RootKey::ClassesRoot ? HKEY_CLASSES_ROOT : HKEY_CURRENT_USER;
    }
    HKEY opened = nullptr;
    ::RegOpenKeyExW(root, wide(key.path), 0, KEY_READ | (key.view == 0 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY), &opened);
    return opened;
}

template <class Each>
void eachEntry(const Text& folder, Each each) {
    WIN32_FIND_DATAW data;
    const HANDLE listing = ::FindFirstFileW(wide(folder + u"\\*"), &data);
    if (listing == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        each(data);
    } while (::FindNextFileW(listing, &data) != 0);
    ::FindClose(listing);
}

} // namespace

bool readKey(const Key& key, const std::vector<Text>& values) {
    const HKEY opened = open(key);
    for (const Text& value : values) {
        std::array<BYTE, 510> data;
        auto size = static_cast<DWORD>(data.size());
        DWORD type = 0;
        ::RegQueryValueExW(opened, wide(value), nullptr, &type, data.data(), &size);
    }
    return opened != nullptr && ::RegCloseKey(opened) == ERROR_SUCCESS;
}

std::size_t readSubKeys(const Key& key, const std::vector<Text>& values) {
    const HKEY opened = open(key);
    std::vector<Text> names;
    std::array<wchar_t, 256> name;
    auto length = static_cast<DWORD>(name.size());
    for (DWORD i = 0; ::RegEnumKeyExW(opened, i, name.data(), &length, nullptr, nullptr, nullptr, nullptr) == 0; ++i) {
        names.emplace_back(reinterpret_cast<const char16_t*>(name.data()), length);
        length = static_cast<DWORD>(name.size());
    }
    ::RegCloseKey(opened);
    for (const Text& subKey : names) {
        readKey({key.root, key.path + u'\\' + subKey, key.view}, values);
    }
    return names.size();
}

std::size_t walk(const Text& folder) {
    std::size_t files = 0;
    std::vector<Text> folders;
    eachEntry(folder, [&files, &folders](const WIN32_FIND_DATAW& data) {
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            ++files;
        } else if (data.cFileName[0] != L'.') {
            folders.push_back(textOf(data.cFileName));
        }
    });
    for (const Text& name : folders) {
        files += walk(folder + u'\\' + name);
    }
    return files;
}

std::vector<Text> list(const Text& folder) {
    std::vector<Text> names;
    eachEntry(folder, [&names](const WIN32_FIND_DATAW& data) {
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
            names.push_back(textOf(data.cFileName));
        }
    });
    return names;
}

std::size_t read(const Text& path) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const HANDLE file = ::CreateFileW(wide(path), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    LARGE_INTEGER size{};
    ::GetFileSizeEx(file, &size);
    std::vector<char> bytes(static_cast<std::size_t>(size.QuadPart));
    DWORD count = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    ::CloseHandle(file);
    return count;
}

bool exists(const Text& path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    return ::GetFileAttributesExW(wide(path), GetFileExInfoStandard, &data) != 0;
}

Text shellFolder(int csidl) {
    std::array<wchar_t, MAX_PATH> path{};
    ::SHGetFolderPathW(nullptr, csidl, nullptr, 0, path.data());
    return textOf(path.data());
}

void volumes() {
    for (wchar_t letter = L'A'; letter <= L'Z'; ++letter) {
        const std::array<wchar_t, 4> root{letter, L':', L'\\', L'\0'};
        std::array<wchar_t, MAX_PATH> name{};
        ::GetVolumeNameForVolumeMountPointW(root.data(), name.data(), MAX_PATH);
    }
}

void writeLog(const std::string& name, const std::vector<std::string>& pieces) {
    const Text wideName(name.begin(), name.end());
    const Text key = u"Software\\Veltrane\\" + wideName;
    readKey({Platform::RootKey::CurrentUser, key, 1}, {});
    readKey({Platform::RootKey::LocalMachine, key, 1}, {});
    const Text folder = shellFolder(Platform::csidlLocalAppData) + u"\\Veltrane\\Logs";
    ::SHCreateDirectory(nullptr, wide(folder));
    const Text path = folder + u"\\" + wideName + u".log";

    struct _stat64 status {};

    ::_wstat64(wide(path), &status);
    const HANDLE file = ::CreateFileW(wide(path), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_ALWAYS, 0, nullptr);
    for (const std::string& piece : pieces) {
        SYSTEMTIME time;
        DWORD count = 0;
        ::GetLocalTime(&time);
        ::WriteFile(file, piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr);
    }
    ::CloseHandle(file);
}

} // namespace Bare
