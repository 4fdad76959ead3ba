#include "platform/PlainFile.h"

#include "platform/windows/WideText.h"

#include <windows.h>

namespace Platform {

namespace {

struct HandleCloser {
    void operator()(void* handle) const noexcept { ::CloseHandle(handle); }
};

using Handle = std::unique_ptr<void, HandleCloser>;

class HandleFile final : public PlainFile {
public:
    explicit HandleFile(Handle file)
        : m_file(std::move(file)) {}

    int readStart(char* buffer, int size) noexcept override {
        OVERLAPPED fromStart{};
        DWORD count = 0;
        const BOOL isRead = ::ReadFile(m_file.get(), buffer, static_cast<DWORD>(size), &count, &fromStart);
        return isRead != 0 || ::GetLastError() == ERROR_HANDLE_EOF ? static_cast<int>(count) : -1;
    }

    void append(const char* data, int size) noexcept override {
        DWORD written = 0;
        ::WriteFile(m_file.get(), data, static_cast<DWORD>(size), &written, nullptr);
    }

private:
    Handle m_file;
};

bool isPlain(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION info{};
    return ::GetFileType(file) == FILE_TYPE_DISK && ::GetFileInformationByHandle(file, &info) != 0 &&
           (info.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0 &&
           info.nNumberOfLinks == 1;
}

} // namespace

std::unique_ptr<PlainFile> openPlainFile(const QString& path) {
    // Without FILE_WRITE_DATA all that is written goes to the end. The other end of a pipe learns nothing of who opens
    // it.
    constexpr DWORD access = GENERIC_READ | FILE_APPEND_DATA;
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr DWORD flags =
        FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT | SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;
    const HANDLE handle = ::CreateFileW(wide(path), access, sharing, nullptr, OPEN_ALWAYS, flags, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    Handle file(handle);
    return isPlain(file.get()) ? std::make_unique<HandleFile>(std::move(file)) : nullptr;
}

} // namespace Platform
