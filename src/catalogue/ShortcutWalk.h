#pragma once

#include <QStringList>
#include <QtGlobal>

/// The paths of all shortcuts (".lnk", in lower case) below `folder`, with native separators: those of a folder before
/// those of its sub-folders, each in the file system's order. Entries that are hidden or the system's are left out, but
/// their folders are walked all the same; a folder named like a shortcut counts as one. Junctions and links are
/// followed unless they lead back to a folder on the way.
///
/// Empty when `folder` is empty or missing, or when the walk takes `limitMs` or longer. What can't be read is left out.
QStringList shortcutsBelow(const QString& folder, quint64 limitMs);
