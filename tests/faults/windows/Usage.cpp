#include "faults/Usage.h"

#include <QFileInfo>

#include <windows.h>

#include <array>
#include <cstdint>

#include <tlhelp32.h>

namespace {

/// Wine counts no handles (GetProcessHandleCount), but knows which are open. Their numbers are small multiples of four.
int openHandles() {
    constexpr std::uintptr_t largest = 0x4000;
    int handles = 0;
    for (std::uintptr_t number = 4; number < largest; number += 4) {
        DWORD flags = 0;
        handles += ::GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags) != 0 ? 1 : 0;
    }
    return handles;
}

int threadsOf(DWORD process) {
    const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    THREADENTRY32 thread{};
    thread.dwSize = sizeof thread;
    int threads = 0;
    for (BOOL more = ::Thread32First(snapshot, &thread); more != 0; more = ::Thread32Next(snapshot, &thread)) {
        threads += thread.th32OwnerProcessID == process ? 1 : 0;
    }
    ::CloseHandle(snapshot);
    return threads;
}

std::size_t allocatedBytes() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        PROCESS_HEAP_ENTRY entry{};
        while (::HeapWalk(heaps.at(i), &entry) != 0) {
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        }
    }
    return bytes;
}

} // namespace

Usage Usage::now() {
    return {openHandles(), threadsOf(::GetCurrentProcessId()), allocatedBytes()};
}

const std::size_t Usage::uncertainBytes = 1'000;

int handlesLostByLookingForSteam() {
    const auto look = [] {
        HKEY key = nullptr;
        if (::RegOpenKeyExW(HKEY_CLASSES_ROOT, L".exe", 0, KEY_READ | KEY_WOW64_32KEY, &key) == ERROR_SUCCESS) {
            ::RegCloseKey(key);
        }
    };
    look(); // the first one makes what the system keeps
    const int before = openHandles();
    look();
    return openHandles() - before;
}

bool isLoaded(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    return ::GetModuleHandleW(reinterpret_cast<const wchar_t*>(name.utf16())) != nullptr;
}
