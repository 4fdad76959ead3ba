#pragma once

#include <QString>

namespace Recordings {

/// One thing that could not be read. The rest of the recording is used all the same.
struct Problem {
    QString file; ///< full path of the file at fault, or the recording's folder
    int line = 0; ///< counted from 1; 0 when the fault is not in a line
    QString message;
};

} // namespace Recordings
