#include "platform/Listing.h"

#include "platform/recorded/Observer.h"
#include "platform/recorded/RecordedPc.h"

namespace Platform {

namespace {

using Entries = std::vector<FolderEntry>;

struct Listing {
    Entries entries;
    std::size_t next = 0;
};

// A link of the system that holds the recording counts as what it leads to.
quint32 attributesOf(const Recorded::Drives& drives, const Recordings::DrivePath& path) {
    const std::optional<Recorded::Drives::File> file = drives.find(path);
    return (file && file->isFolder() ? attributeFolder : 0U) | (drives.isHidden(path) ? attributeHidden : 0U) |
           (drives.isSystem(path) ? attributeSystem : 0U);
}

Entries entriesOf(const Recorded::Drives& drives, const Recordings::DrivePath& folder) {
    Entries entries;
    if (!folder.isRoot()) {
        entries = {{QStringLiteral("."), attributeFolder}, {QStringLiteral(".."), attributeFolder}};
    }
    for (QString& name : drives.list(folder)) {
        Recordings::DrivePath path = folder;
        path.names.append(name);
        path.isFolderOnly = false;
        entries.push_back({std::move(name), attributesOf(drives, path)});
    }
    return entries;
}

} // namespace

void ListingCloser::operator()(void* listing) const noexcept {
    delete static_cast<Listing*>(listing);
}

ListingHandle firstEntry(const QString& folder, FolderEntry& entry) {
    const std::optional<Recordings::DrivePath> path = Recordings::DrivePath::parse(folder);
    const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
    const std::optional<Recorded::Drives::File> file = path ? pc->drives().find(*path) : std::nullopt;
    if (!file || !file->isFolder()) {
        return nullptr;
    }
    if (Recorded::isObserved()) {
        Recorded::observe(QLatin1String("list ") + path->text());
    }
    ListingHandle listing(new Listing{entriesOf(pc->drives(), *path)});
    return nextEntry(listing, entry) ? std::move(listing) : nullptr;
}

bool nextEntry(const ListingHandle& listing, FolderEntry& entry) {
    auto& state = *static_cast<Listing*>(listing.get());
    if (state.next >= state.entries.size()) {
        return false;
    }
    entry = state.entries[state.next];
    ++state.next;
    return true;
}

bool fileIdentity(const QString& path, FileIdentity& identity) {
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(path);
    const std::optional<Recorded::Drives::File> file =
        parsed ? Recorded::currentPc()->drives().find(*parsed) : std::nullopt;
    if (!file) {
        return false;
    }
    identity = {file->info.st_dev, file->info.st_ino};
    return true;
}

} // namespace Platform
