#pragma once

#include <QJsonObject>
#include <QString>

namespace Find {

struct FinderEntry;
struct Game;

/// The finder as a catalogue has it, in one line; what may be left out and says nothing is.
QString catalogueText(const FinderEntry& finder);

/// The game as a catalogue has it, in one line to be pasted into one.
QString catalogueText(const Game& game);

/// The same as an object.
QJsonObject jsonOf(const FinderEntry& finder);

} // namespace Find
