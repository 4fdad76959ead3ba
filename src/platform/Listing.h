#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

/// What a folder holds.
namespace Platform {

constexpr quint32 attributeHidden = 0x0002;
constexpr quint32 attributeSystem = 0x0004;
constexpr quint32 attributeFolder = 0x0010;
constexpr quint32 attributeLink = 0x0400; ///< a junction or a symbolic link, as any reparse point is

/// One entry of a folder as the folder tells it: the link itself, the shortcut itself.
struct FolderEntry {
    QString name;
    quint32 attributes = 0;
};

struct ListingCloser {
    void operator()(void* listing) const noexcept; // FindClose
};

/// Owns one listing on its way; null when the folder can't be listed.
using ListingHandle = std::unique_ptr<void, ListingCloser>;

/// FindFirstFileW of `folder`\*. The entries come in the file system's order, with "." and ".." in all folders but a
/// drive's root.
ListingHandle firstEntry(const QString& folder, FolderEntry& entry);
bool nextEntry(const ListingHandle& listing, FolderEntry& entry); // FindNextFileW

/// What tells two files or folders apart, however they are reached.
struct FileIdentity {
    quint64 volume = 0;
    quint64 index = 0;
};

/// GetFileInformationByHandle of what `path` leads to. False when it can't be opened.
bool fileIdentity(const QString& path, FileIdentity& identity);

} // namespace Platform
