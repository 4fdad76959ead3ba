#pragma once

#include "platform/Listing.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// What is in a folder, but "." and "..": links and shortcuts themselves. Empty when it has no drive letter or can't be
/// listed.
std::vector<Platform::FolderEntry> listFolder(const QString& folder);

/// The names of a folder's folders, links to folders among them.
QStringList subFoldersOf(const QString& folder);

/// Whether the entry is a folder that is not a link to one.
bool isRealFolder(const Platform::FolderEntry& entry);

} // namespace Find
