#pragma once

#include "find/cli/Outcome.h"

#include <QStringList>

namespace Find {

/// The whole program, given its arguments. Needs the application object.
ExitStatus runProgram(const QStringList& arguments);

/// What a double click does (Dialogue.h), on the terminal and the Desktop.
ExitStatus runDialogue();

/// Tells the user that memory ran out, which is how the caller of `runProgram` ends on std::bad_alloc.
ExitStatus failForMemory();

} // namespace Find
