#pragma once

#include "recordings/Problem.h"

#include <QString>

#include <optional>
#include <vector>

/// Recorded PCs as a host sees them: which one the library answers from, and what is wrong with it. The format is
/// docs/recorded-pc.md.
namespace Recordings {

/// The environment variable that names the recorded PC's folder. Read whenever the platform is asked, so a host sets
/// it before it makes a factory.
constexpr const char* environmentVariable = "LURULUDRI_PC";

/// Everything that is wrong with the recording in `folder`, in the order of its files; empty when all could be read.
/// No value on a system that answers from the PC it runs on and knows no recordings.
std::optional<std::vector<Problem>> problems(const QString& folder);

} // namespace Recordings
