#pragma once

#include <QString>

#include <functional>

/// Lets a test see what the library asks a PC, so that "is read once" can be said in one line.
namespace Recorded {

/// Told each question: "key HKLM32\Software\X", "value X", "list C:/Games", "stat C:/x", "open C:/x". Called on the
/// thread that asks, one call at a time; must not ask the PC itself.
using Observer = std::function<void(const QString&)>;

/// Sets the process's observer; an empty one ends the observation.
void setObserver(Observer observer);

bool isObserved() noexcept;

void observe(const QString& question);

} // namespace Recorded
