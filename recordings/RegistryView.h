#pragma once

#include <QStringList>

namespace Recordings {

enum class RegistryView { Bits64, Bits32 };

/// Where Windows keeps the key that a program asks for as `path` below HKEY_LOCAL_MACHINE: in the 32-bit view most of
/// `Software` is a tree of its own, `Software\Wow6432Node`. A path that names that tree means it in both views. Names
/// keep their spelling.
QStringList storedMachinePath(const QStringList& path, RegistryView view);

/// The same below `Software\Classes`, where few keys have a second tree. `path` is without `Software\Classes`; so is
/// the result.
QStringList storedClassesPath(const QStringList& path, RegistryView view);

/// The same below HKEY_CURRENT_USER, where only the classes have a second tree.
QStringList storedUserPath(const QStringList& path, RegistryView view);

} // namespace Recordings
