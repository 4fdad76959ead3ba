#include "platform/SystemFunctions.h"

#include <windows.h>

namespace Platform {

SystemFunction kernelFunction(const char* name) {
    const HMODULE kernel = ::LoadLibraryW(L"KERNEL32.DLL"); // always loaded, so never to be freed
    return kernel == nullptr ? nullptr : reinterpret_cast<SystemFunction>(::GetProcAddress(kernel, name));
}

} // namespace Platform
