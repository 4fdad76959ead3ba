#pragma once

namespace Recordings {

struct ShellFolderName {
    const char* name;
    int csidl; ///< the number that SHGetFolderPathW takes
};

/// The shell's folders by the names that pc.json gives them (docs/recorded-pc.md).
constexpr ShellFolderName shellFolders[] = {
    {"personal", 5}, {"startMenu", 11}, {"commonStartMenu", 22}, {"localAppData", 28}, {"commonAppData", 35},
};

} // namespace Recordings
