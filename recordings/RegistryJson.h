#pragma once

#include "recordings/Json.h"
#include "recordings/Problem.h"
#include "recordings/Registry.h"

#include <vector>

namespace Recordings {

/// The registry within the one file: an object of keys, by their full names, of objects of values. A string is itself;
/// any other value is an object with its type's number and its bytes in hexadecimal digits.
const QLatin1String registryMember("registry");

JsonValue registryJson(const Registry& registry);

/// Reads it. A fault costs only the key or the value that has it.
void readRegistryJson(const JsonValue& json, const QString& file, Registry& registry, std::vector<Problem>& problems);

} // namespace Recordings
