#pragma once

#include <QString>
#include <QStringList>

/// The "steamapps" folders of the libraries that a "libraryfolders.vdf" lists and whose folders exist, in the file's
/// order, absolute with forward slashes. The file is taken line by line: what begins with "path" in quotes names a
/// library, all else is skipped. Empty when the file is missing or can't be read.
QStringList parseLibraryFolders(const QString& vdfPath);
