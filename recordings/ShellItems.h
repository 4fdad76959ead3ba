#pragma once

#include "recordings/ByteView.h"

#include <QByteArray>
#include <QString>

namespace Recordings {

/// The path that a list of shell items names, "C:\Games\X\X.exe": My Computer, one of its drives, folders, a file.
/// Empty for any other list (of the control panel, an app, the network, a folder that the shell knows by its id) and
/// for a damaged one. `items` is the list without its size.
QString pathOfShellItems(const ByteView& items);

/// The list for the path of a file, "C:\Games\X\X.exe", or of a drive, as Windows XP and later write it, but without
/// sizes and dates. Empty when `path` is none on a drive, or longer than a
/// list can be.
QByteArray renderShellItems(const QString& path);

} // namespace Recordings
