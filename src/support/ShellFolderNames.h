#pragma once

#include "support/Platform.h"

namespace Recording {

struct ShellFolderName {
    const char* name;
    int csidl;
};

/// The shell's folders by the names that pc.json gives them (docs/recorded-pc.md).
constexpr ShellFolderName shellFolders[] = {
    {"personal", Platform::csidlPersonal},
    {"startMenu", Platform::csidlStartMenu},
    {"commonStartMenu", Platform::csidlCommonStartMenu},
    {"localAppData", Platform::csidlLocalAppData},
    {"commonAppData", Platform::csidlCommonAppData},
};

} // namespace Recording
