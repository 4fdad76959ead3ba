#pragma once

#include "find/explain/TraceReader.h"

#include <QString>

namespace Find {

struct Game;
struct GameAnswer;

/// What happened when the plug-in was asked for the game, as its trace tells: for each finder where it looked, what it
/// saw and why it went on. In full when `isFull`; otherwise long lists are told in brief.
QString explain(const Game& game, const GameAnswer& answer, const TraceEvents& events, bool isFull);

} // namespace Find
