#include "platform/Listing.h"

#include "platform/recorded/Observer.h"
#include "platform/recorded/PcPaths.h"

#include <cstdint>

namespace Platform {

namespace {

using Entries = std::vector<FolderEntry>;

struct Listing {
    Entries entries;
    std::size_t next = 0;
};

quint32 attributesOf(const Recordings::File& file) {
    return (file.isFolder() ? attributeFolder : 0U) | (file.isHidden ? attributeHidden : 0U) |
           (file.isSystem ? attributeSystem : 0U);
}

Entries entriesOf(const Recordings::Drives& drives, const Recordings::DrivePath& folder) {
    Entries entries;
    if (!folder.isRoot()) {
        entries = {{QStringLiteral("."), attributeFolder}, {QStringLiteral(".."), attributeFolder}};
    }
    for (const QString& name : drives.list(folder)) {
        entries.push_back({name, attributesOf(*drives.find(Recordings::pathIn(folder, name)))});
    }
    return entries;
}

} // namespace

void ListingCloser::operator()(void* listing) const noexcept {
    delete static_cast<Listing*>(listing);
}

ListingHandle firstEntry(const QString& folder, FolderEntry& entry) {
    const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
    const std::optional<Recordings::DrivePath> path = Recordings::DrivePath::parse(Recorded::pathOnDrive(*pc, folder));
    const Recordings::File* const file = path ? pc->drives().find(*path) : nullptr;
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
    const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
    const std::optional<Recordings::DrivePath> parsed = Recordings::DrivePath::parse(Recorded::pathOnDrive(*pc, path));
    const Recordings::File* const file = parsed ? pc->drives().find(*parsed) : nullptr;
    if (!file) {
        return false;
    }
    identity =
        file->identity != 0 ? FileIdentity{1, file->identity} : FileIdentity{2, reinterpret_cast<std::uintptr_t>(file)};
    return true;
}

} // namespace Platform
