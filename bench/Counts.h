#pragma once

/// How much is installed on the PC that the benchmarks ask: more than on most.
namespace Counts {

constexpr int programs = 1000;
constexpr int shortcuts = 1000;
constexpr int menuFolders = 50;
constexpr int apps = 1000;

} // namespace Counts
