#include "allocation/SystemMemory.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>

// Qt and the plug-in are DLLs, each with an operator new of its own, which asks msvcrt.dll for memory, as Qt does. What
// they import from there is replaced; in the test program itself operator new alone.

namespace {

std::atomic<long> blocksInUse{0};
bool isQtSpared = false;

/// Two modules' worth of functions, as Qt may be spared.
enum class Module { plugIn, qt };

void* counted(void* memory) noexcept {
    blocksInUse += memory != nullptr ? 1 : 0;
    return memory;
}

void* failed() noexcept {
    errno = ENOMEM;
    return nullptr;
}

template <Module module>
bool mayAllocate() noexcept {
    return (module == Module::qt && isQtSpared) || SystemMemory::mayAllocate();
}

template <Module module>
void* replacedMalloc(std::size_t size) noexcept {
    return mayAllocate<module>() ? counted(std::malloc(size)) : failed();
}

template <Module module>
void* replacedCalloc(std::size_t count, std::size_t size) noexcept {
    return mayAllocate<module>() ? counted(std::calloc(count, size)) : failed();
}

template <Module module>
void* replacedRealloc(void* memory, std::size_t size) noexcept {
    if (memory == nullptr) {
        return replacedMalloc<module>(size);
    }
    return mayAllocate<module>() ? std::realloc(memory, size) : failed();
}

void replacedFree(void* memory) noexcept {
    blocksInUse -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

struct Replacement {
    const char* name;
    void* function;
};

template <Module module>
const std::array<Replacement, 4> replacements{{{"malloc", reinterpret_cast<void*>(replacedMalloc<module>)},
                                               {"calloc", reinterpret_cast<void*>(replacedCalloc<module>)},
                                               {"realloc", reinterpret_cast<void*>(replacedRealloc<module>)},
                                               {"free", reinterpret_cast<void*>(replacedFree)}}};

template <Module module>
void replace(ULONG_PTR& imported) {
    const HMODULE runtime = GetModuleHandleW(L"msvcrt.dll");
    for (const Replacement& replacement : replacements<module>) {
        if (imported == reinterpret_cast<ULONG_PTR>(GetProcAddress(runtime, replacement.name))) {
            DWORD protection = 0;
            VirtualProtect(&imported, sizeof imported, PAGE_READWRITE, &protection);
            imported = reinterpret_cast<ULONG_PTR>(replacement.function);
            VirtualProtect(&imported, sizeof imported, protection, &protection);
            return;
        }
    }
}

/// Replaces what the module imports, once it is loaded; it is not unloaded any more.
template <Module module>
void replaceIn(const wchar_t* name) {
    auto* const base = reinterpret_cast<std::byte*>(GetModuleHandleW(name));
    static const void* replacedBefore = nullptr;
    if (base == replacedBefore) {
        return;
    }
    replacedBefore = base;
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& imports = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    for (auto* from = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress); from->Name != 0;
         ++from) {
        if (_stricmp(reinterpret_cast<const char*>(base + from->Name), "msvcrt.dll") != 0) {
            continue;
        }
        for (auto* entry = reinterpret_cast<IMAGE_THUNK_DATA*>(base + from->FirstThunk); entry->u1.Function != 0;
             ++entry) {
            replace<module>(entry->u1.Function);
        }
    }
}

} // namespace

void SystemMemory::prepare() {
    replaceIn<Module::qt>(L"Qt5Core.dll");
    replaceIn<Module::plugIn>(L"Luruludri.dll");
}

void* SystemMemory::allocate(std::size_t size) noexcept {
    return replacedMalloc<Module::plugIn>(size);
}

void SystemMemory::release(void* memory) noexcept {
    replacedFree(memory);
}

void SystemMemory::spareQt(bool isSpared) {
    isQtSpared = isSpared;
}

void SystemMemory::run(const std::function<void()>& work) {
    work();
}

long SystemMemory::blocks() {
    return blocksInUse;
}

bool SystemMemory::nothingLeaked() {
    return true;
}
