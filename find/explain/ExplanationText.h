#pragma once

#include "find/terminal/Terminal.h"

#include <QJsonObject>
#include <QString>

namespace Find {

struct Explanation;

/// The explanation for people, as wide and as colourful as the terminal.
QString renderExplanation(const Explanation& explanation, const Terminal& terminal = {});

/// The same for programs: "explanation" and "similar" (docs/json.md).
QJsonObject jsonOf(const Explanation& explanation);

} // namespace Find
