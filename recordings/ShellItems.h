#pragma once

#include "recordings/ByteView.h"

#include <QString>

namespace Recordings {

/// The path that a list of shell items names, "C:\Games\X\X.exe": My Computer, one of its drives, folders, a file.
/// Empty for any other list (of the control panel, an app, the network, a folder that the shell knows by its id) and
/// for a damaged one. `items` is the list without its size.
QString pathOfShellItems(const ByteView& items);

} // namespace Recordings
