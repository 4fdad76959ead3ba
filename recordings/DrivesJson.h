#pragma once

#include "recordings/Drives.h"
#include "recordings/Json.h"
#include "recordings/Problem.h"

#include <vector>

namespace Recordings {

/// The drives within the one file: an object of lists of what is in a folder, in the file system's order. An empty file
/// is its name; other files, folders and shortcuts are objects.
const QLatin1String drivesMember("drives");

/// A file that can't be read counts as empty.
JsonValue drivesJson(const Drives& drives);

/// Reads them. A fault costs only the file or folder that has it.
Drives readDrivesJson(const JsonValue& json, const QString& file, std::vector<Problem>& problems);

} // namespace Recordings
