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

bool isElevated() {
    HANDLE token = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == 0) {
        return true; // as far as anybody knows
    }
    // The one of an administrator's two tokens that has all the rights. Who has only one, as where user account control
    // is off, has no more rights than the user's own.
    TOKEN_ELEVATION_TYPE type = TokenElevationTypeFull;
    DWORD size = 0;
    const BOOL isTold = ::GetTokenInformation(token, TokenElevationType, &type, sizeof type, &size);
    ::CloseHandle(token);
    return isTold == 0 || type == TokenElevationTypeFull;
}

} // namespace Platform
