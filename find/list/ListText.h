#pragma once

#include "find/list/ListedGame.h"
#include "find/terminal/Terminal.h"

#include <QJsonArray>
#include <QString>

#include <vector>

namespace Find {

/// What is installed for people, each with a line for a catalogue where one is known. Those lines are never broken, so
/// that they can be pasted.
QString renderList(const std::vector<ListedGame>& games, const Terminal& terminal);

/// The same for programs (docs/json.md).
QJsonArray jsonOf(const std::vector<ListedGame>& games);

} // namespace Find
