#pragma once

#include "platform/Registry.h"

#include <cstddef>
#include <string>
#include <vector>

/// The floors: what the library asks of the system, asked in bare loops that do nothing with the answers but count
/// them. On Windows by Win32 alone, without Qt and without the seam; on a recorded PC by the seam, which is the system
/// there.
namespace Bare {

using Text = std::u16string;

struct Key {
    Platform::RootKey root = Platform::RootKey::LocalMachine;
    Text path;
    quint32 view = 0; ///< a view flag as RegistryKey takes it
};

/// Opens a key and reads these values. False when it can't be opened.
bool readKey(const Key& key, const std::vector<Text>& values);

/// Opens a key, lists its sub-keys, and reads these values of each; returns their number.
std::size_t readSubKeys(const Key& key, const std::vector<Text>& values);

/// Lists a folder and all below it; returns the number of files.
std::size_t walk(const Text& folder);

/// The names of the folder's files.
std::vector<Text> list(const Text& folder);

/// Reads a whole file; returns the number of its bytes.
std::size_t read(const Text& path);

bool exists(const Text& path);

/// Asks the shell for the folder with this CSIDL value.
Text shellFolder(int csidl);

/// Asks all drives for the names of their volumes.
void volumes();

/// Asks what a log asks before it is opened (its level, its folder, its size), opens it, and writes these pieces to its
/// end, each by a write of its own and after a look at the clock.
void writeLog(const std::string& name, const std::vector<std::string>& pieces);

} // namespace Bare
