#pragma once

#include "recordings/Drives.h"
#include "recordings/Problem.h"

#include <QByteArray>

#include <vector>

namespace Recordings {

/// The drives in `folder`, a path as HostFiles takes it: a folder for each, named by its letter. Files are read when
/// somebody asks for their contents. Links count as what they lead to; one that leads back to a folder on the way is
/// left out, so that every walk ends. What no Windows PC could have is left out and added to `problems`.
Drives readDriveFolders(const QByteArray& folder, std::vector<Problem>& problems);

/// Writes the drives' files below `folder`. Empty, or the path of the file that could not be written.
QByteArray writeDriveFolders(const Drives& drives, const QByteArray& folder);

} // namespace Recordings
