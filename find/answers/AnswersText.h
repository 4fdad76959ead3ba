#pragma once

#include "find/terminal/Terminal.h"

#include <QJsonObject>
#include <QString>

namespace Find {

struct Answers;
struct GameAnswer;

/// The answers for people: a table of the games, when there are any, one of the runtimes, and how many games were
/// found.
QString renderTables(const Answers& answers, const Terminal& terminal = {});

/// The answers for programs, described in docs/json.md.
QJsonObject jsonOf(const Answers& answers);

/// The answer for one of the games.
QJsonObject jsonOf(const GameAnswer& game);

} // namespace Find
