#pragma once

#include <QStringList>

namespace Find {

enum ExitStatus {
    allFound = 0,
    someNotFound = 1,
    failed = 2, ///< wrong use, or something that the program reads is missing or broken
};

/// The whole program, given its arguments. Needs the application object.
ExitStatus runProgram(const QStringList& arguments);

/// What a double click does (Dialogue.h), on the terminal and the Desktop.
ExitStatus runDialogue();

/// Tells the user that memory ran out, which is how `runProgram` and its caller end on std::bad_alloc.
ExitStatus failForMemory();

} // namespace Find
