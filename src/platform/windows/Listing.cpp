#include "platform/Listing.h"

#include "platform/windows/WideText.h"

#include <windows.h>

namespace Platform {

static_assert(attributeHidden == FILE_ATTRIBUTE_HIDDEN && attributeSystem == FILE_ATTRIBUTE_SYSTEM &&
              attributeFolder == FILE_ATTRIBUTE_DIRECTORY && attributeLink == FILE_ATTRIBUTE_REPARSE_POINT);

namespace {

FolderEntry entryOf(const WIN32_FIND_DATAW& data) {
    return {QString::fromWCharArray(data.cFileName), data.dwFileAttributes};
}

} // namespace

void ListingCloser::operator()(void* listing) const noexcept {
    ::FindClose(listing);
}

ListingHandle firstEntry(const QString& folder, FolderEntry& entry) {
    WIN32_FIND_DATAW data{};
    const HANDLE listing = ::FindFirstFileW(wide(folder + QLatin1String("\\*")), &data);
    if (listing == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    ListingHandle owned(listing);
    entry = entryOf(data);
    return owned;
}

bool nextEntry(const ListingHandle& listing, FolderEntry& entry) {
    WIN32_FIND_DATAW data{};
    if (::FindNextFileW(listing.get(), &data) == 0) {
        return false;
    }
    entry = entryOf(data);
    return true;
}

bool fileIdentity(const QString& path, FileIdentity& identity) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        ::CreateFileW(wide(path), 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    BY_HANDLE_FILE_INFORMATION information{};
    const bool isKnown = ::GetFileInformationByHandle(file, &information) != 0;
    ::CloseHandle(file);
    identity.volume = information.dwVolumeSerialNumber;
    identity.index = (quint64{information.nFileIndexHigh} << 32U) | information.nFileIndexLow;
    return isKnown;
}

} // namespace Platform
