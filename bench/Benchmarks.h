#pragma once

#include <cstddef>
#include <functional>

class Figures;
class QString;

/// All that is measured. A floor whose answers are not those of the work ends the process.
namespace Benchmarks {

/// How long the six lists take at the first question, against their floors, and how much memory they need.
void builds(const Figures& figures, int keys, int files);

/// What a user would run instead, against the lists.
void programs(const Figures& figures, int keys, int files);

/// How many bytes more than before are held at once during `work`; 0 where it can't be told.
std::size_t peakMemory(const std::function<void()>& work);

/// What later questions take.
void searches(const Figures& figures, int keys, int files);

/// Does, between questions for the files "calls: NAME" and "calls: end", what bench/run counts the system calls of.
void calls(const QString& plugin);

/// The plug-in as a file: its size, its loading, `Create`.
void plugin(const Figures& figures, const QString& path);

} // namespace Benchmarks
