#pragma once

#include "platform/Clocks.h"

#include <array>

/// What a line of a log begins with, as text with its end. On the stack, because a closing banner must come out even
/// when memory has run out.
using LogPrefix = std::array<char, 64>;

/// The time, each field with its leading zeros, and the level letter: "2024:03:07_14:05:09:042 A: ".
LogPrefix logPrefix(const Platform::LocalTime& time, char letter) noexcept;
