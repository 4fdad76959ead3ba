#include "support/LogPrefix.h"

#include <cstdio>

LogPrefix logPrefix(const Platform::LocalTime& time, char letter) noexcept {
    LogPrefix prefix{};
    std::snprintf(prefix.data(), prefix.size(), "%04i:%02i:%02i_%02i:%02i:%02i:%03i %c: ", time.year, time.month,
                  time.day, time.hour, time.minute, time.second, time.milliseconds, letter);
    return prefix;
}
