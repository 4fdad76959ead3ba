#pragma once

#include "find/cli/Terminal.h"

#include <QString>

namespace Find {

struct Answers;

/// The answers for people: a table of the games, when there are any, and one of the runtimes.
QString renderTables(const Answers& answers, const Terminal& terminal = {});

/// The answers for programs: a JSON object, described in docs/json.md.
QString renderJson(const Answers& answers);

} // namespace Find
