#pragma once

#include <QFileDevice>
#include <QString>

namespace Find {

/// Why no new file can be made at `path`; empty when nothing speaks against it.
QString causeAgainstFile(const QString& path);

/// The same for a folder, with those on the way.
QString causeAgainstFolder(const QString& path);

/// The cause of an error while a file was written, in plain words where the system has none.
QString causeOf(QFileDevice::FileError error, const QString& systemsText);

/// The same for an error of the C library.
QString causeOf(int error);

} // namespace Find
