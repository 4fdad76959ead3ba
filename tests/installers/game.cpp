#include <windows.h>

#include <array>
#include <cstdio>

/// A dummy game: says which file it is and ends with a status that no program gives by chance.
int main() {
    constexpr int playedStatus = 42;
    std::array<wchar_t, 1024> path{};
    std::array<char, 4 * path.size()> text{};
    ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    ::WideCharToMultiByte(CP_UTF8, 0, path.data(), -1, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
    std::fputs(text.data(), stdout);
    return playedStatus;
}
