#include "platform/Process.h"

#include <windows.h>

namespace Platform {

quint32 moduleFileName(char16_t* buffer, quint32 size) {
    return ::GetModuleFileNameW(nullptr, reinterpret_cast<wchar_t*>(buffer), size);
}

quint32 currentProcessId() {
    return ::GetCurrentProcessId();
}

QProcessEnvironment systemEnvironment() {
    return QProcessEnvironment::systemEnvironment();
}

} // namespace Platform
