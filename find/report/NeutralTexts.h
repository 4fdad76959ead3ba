#pragma once

#include "find/answers/Answers.h"
#include "find/catalogue/Catalogue.h"
#include "find/explain/TraceReader.h"
#include "recordings/NeutralNames.h"

namespace Find {

/// The event as it would be told of the recording, with neutral names in the place of private ones.
TraceEvent neutralEvent(const TraceEvent& event, const Recordings::NeutralNames& names);

GameAnswer neutralAnswer(const GameAnswer& answer, const Recordings::NeutralNames& names);
RuntimeAnswer neutralAnswer(const RuntimeAnswer& answer, const Recordings::NeutralNames& names);

/// The game with what its finders search for; a folder that is known beforehand may be the user's. It keeps its name,
/// which comes from the catalogue and not from the PC.
Game neutralGame(const Game& game, const Recordings::NeutralNames& names);

} // namespace Find
