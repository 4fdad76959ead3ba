#include "host/Console.h"

#include <windows.h>

namespace Host {

Console::Console()
    : m_codePageBefore(GetConsoleOutputCP()) {
    SetConsoleOutputCP(CP_UTF8);
}

Console::~Console() {
    // The code page belongs to the terminal and would outlive the program.
    if (m_codePageBefore != 0) {
        SetConsoleOutputCP(m_codePageBefore);
    }
}

} // namespace Host
