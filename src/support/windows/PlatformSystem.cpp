#include "support/Platform.h"

#include "support/windows/WideText.h"

#include <windows.h>

#include <shlobj.h>

namespace Platform {

static_assert(maxPath == MAX_PATH, "Windows fills buffers of MAX_PATH characters");

// ---- Folders, modules, time ----

qint32 folderPath(int csidl, char16_t* buffer) {
    return ::SHGetFolderPathW(nullptr, csidl, nullptr, SHGFP_TYPE_CURRENT, reinterpret_cast<wchar_t*>(buffer));
}

qint32 ownFolderPath(int csidl, char16_t* buffer) {
    return folderPath(csidl, buffer);
}

quint32 moduleFileName(char16_t* buffer, quint32 size) {
    return ::GetModuleFileNameW(nullptr, reinterpret_cast<wchar_t*>(buffer), size);
}

quint32 currentProcessId() {
    return ::GetCurrentProcessId();
}

LocalTime localTime() noexcept {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds};
}

bool performanceFrequency(qint64& ticksPerSecond) {
    LARGE_INTEGER frequency{};
    const bool known = ::QueryPerformanceFrequency(&frequency) != 0;
    ticksPerSecond = frequency.QuadPart;
    return known;
}

bool performanceCounter(qint64& ticks) {
    LARGE_INTEGER counter{};
    const bool known = ::QueryPerformanceCounter(&counter) != 0;
    ticks = counter.QuadPart;
    return known;
}

quint32 tickCount() {
    return ::GetTickCount();
}

SystemFunction kernelFunction(const char* name) {
    const HMODULE kernel = ::LoadLibraryW(L"KERNEL32.DLL"); // always loaded, so never to be freed
    return kernel == nullptr ? nullptr : reinterpret_cast<SystemFunction>(::GetProcAddress(kernel, name));
}

QProcessEnvironment systemEnvironment() {
    return QProcessEnvironment::systemEnvironment();
}

bool volumeName(const QString& mountPoint, char16_t* buffer) {
    return ::GetVolumeNameForVolumeMountPointW(wide(mountPoint), reinterpret_cast<wchar_t*>(buffer), maxPath) != 0;
}

QString recordedUserLocation(const QString& /*key*/) {
    return {};
}

QStringList recordedUserLocationKeys() {
    return {};
}

// ---- Version resources ----

quint32 fileVersionInfoSize(const QString& path) {
    DWORD unused = 0;
    return ::GetFileVersionInfoSizeW(wide(path), &unused);
}

bool fileVersionInfo(const QString& path, quint32 size, void* block) {
    return ::GetFileVersionInfoW(wide(path), 0, size, block) != 0;
}

bool versionRootBlock(const void* block, const void*& record, quint32& length) {
    void* found = nullptr;
    UINT foundLength = 0;
    const bool known = ::VerQueryValueW(block, L"\\", &found, &foundLength) != 0;
    record = found;
    length = foundLength;
    return known;
}

// ---- Locks ----

void CriticalSectionDeleter::operator()(void* section) const noexcept {
    auto* const owned = static_cast<CRITICAL_SECTION*>(section);
    ::DeleteCriticalSection(owned);
    delete owned;
}

CriticalSectionHandle newCriticalSection() {
    auto section = std::make_unique<CRITICAL_SECTION>();
    ::InitializeCriticalSection(section.get());
    return CriticalSectionHandle(section.release());
}

void enterCriticalSection(const CriticalSectionHandle& section) {
    ::EnterCriticalSection(static_cast<CRITICAL_SECTION*>(section.get()));
}

void leaveCriticalSection(const CriticalSectionHandle& section) noexcept {
    ::LeaveCriticalSection(static_cast<CRITICAL_SECTION*>(section.get()));
}

} // namespace Platform
