#pragma once

#include "recordings/Pc.h"

/// PCs made up for tests of the formats.
namespace OddPc {

/// A PC with what is hard to write down: names and values with quotes, backslashes, line breaks, lone surrogates and
/// letters of many scripts, values of all types and sizes, files in an order of their own.
/// `isForFiles`: without what can't be in names of this system's files or in a registry file.
Recordings::Pc make(bool isForFiles);

} // namespace OddPc
