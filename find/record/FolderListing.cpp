#include "find/record/FolderListing.h"

#include "recordings/DrivePath.h"

#include <optional>

namespace Find {

namespace {

/// In the form that has no longest length and means each name as it is.
QString literalPath(const Recordings::DrivePath& path) {
    const QString drive = QLatin1String("\\\\?\\") + QString(path.letter) + QLatin1Char(':');
    return (QStringList{drive} + path.names).join(QLatin1Char('\\'));
}

} // namespace

std::vector<Platform::FolderEntry> listFolder(const QString& folder) {
    std::vector<Platform::FolderEntry> entries;
    const std::optional<Recordings::DrivePath> path = Recordings::DrivePath::parse(folder);
    if (!path) {
        return entries;
    }
    Platform::FolderEntry entry;
    const Platform::ListingHandle listing = Platform::firstEntry(literalPath(*path), entry);
    for (bool isThere = listing != nullptr; isThere; isThere = Platform::nextEntry(listing, entry)) {
        if (entry.name != QLatin1String(".") && entry.name != QLatin1String("..")) {
            entries.push_back(entry);
        }
    }
    return entries;
}

QStringList subFoldersOf(const QString& folder) {
    QStringList names;
    for (const Platform::FolderEntry& entry : listFolder(folder)) {
        if ((entry.attributes & Platform::attributeFolder) != 0) {
            names.append(entry.name);
        }
    }
    return names;
}

bool isRealFolder(const Platform::FolderEntry& entry) {
    return (entry.attributes & Platform::attributeFolder) != 0 && (entry.attributes & Platform::attributeLink) == 0;
}

} // namespace Find
