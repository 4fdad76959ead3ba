#pragma once

#include "platform/Listing.h"
#include "support/Clock.h"

#include <QStringList>
#include <QtGlobal>

#include <functional>

/// Whom a walk asks: the PC, unless a test says otherwise.
struct WalkSource {
    std::function<Platform::ListingHandle(const QString& folder, Platform::FolderEntry& entry)> firstEntry =
        Platform::firstEntry;
    std::function<bool(const Platform::ListingHandle& listing, Platform::FolderEntry& entry)> nextEntry =
        Platform::nextEntry;
    std::function<bool(const QString& path, Platform::FileIdentity& identity)> fileIdentity = Platform::fileIdentity;
    std::function<quint64()> clockMs = tickCountMs;
};

/// The paths of all shortcuts (".lnk", in lower case) below `folder`, with native separators: those of a folder before
/// those of its sub-folders, each in the file system's order. Entries that are hidden or the system's are left out, but
/// their folders are walked all the same; a folder named like a shortcut counts as one. Junctions and links are
/// followed unless they lead back to a folder on the way.
///
/// Empty when `folder` is empty or missing, or when the walk takes `limitMs` or longer: a part of the shortcuts must
/// not pass for all. What can't be read is left out.
QStringList shortcutsBelow(const QString& folder, quint64 limitMs, const WalkSource& source = {});
