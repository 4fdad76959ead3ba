#pragma once

#include <QString>

/// The executable of the process that loaded this library. Worked out at the first call and kept for the process.
/// Empty when the system does not tell.
QString hostExecutablePath();
QString hostExecutableFileName();
