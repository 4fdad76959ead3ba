#pragma once

#include "find/terminal/Complaint.h"

#include <QString>

namespace Find {

/// What the program tells its caller.
enum ExitStatus {
    allFound = 0,
    someNotFound = 1,
    failed = 2, ///< wrong use, or something that the program reads is missing or broken, or it could not write
};

/// Tells the user.
ExitStatus fail(const Complaint& complaint);

/// `status`, after answers were printed; tells the user when they could not be. To be called right then, as the cause
/// is the last one that the C library has seen.
ExitStatus afterPrinting(bool isPrinted, ExitStatus status);

ExitStatus print(const QString& text, ExitStatus status);

} // namespace Find
