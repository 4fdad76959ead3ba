#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <limits>

/// What finders ask of the PC's file system: Qt's own questions, each told to the trace. Names of files come in the
/// file system's order.
namespace Files {

/// QFile::exists: a file or a folder of this name is there; for a shortcut, what it leads to.
bool exists(const QString& path);

/// QDir::exists: the folder itself is there.
bool folderExists(const QString& folder);

/// QDir::cd: makes `folder` the folder `name` in it, or the one above it ("..") or any other when `name` is a whole
/// path. False when there is none; `folder` is then untouched.
bool enter(QString& folder, const QString& name);

/// The names of the folder's files that end in `ending` (".acf") in any letter case, without hidden ones, as QDir lists
/// them; empty when it can't be listed.
QStringList names(const QString& folder, const QString& ending);

/// All bytes of a file; empty when it is missing, can't be opened or has more than `largest` bytes.
QByteArray readWholeFile(const QString& path, qint64 largest = std::numeric_limits<qint64>::max());

/// Where a shortcut leads, with forward slashes; empty when it leads nowhere.
QString shortcutTarget(const QString& path);

} // namespace Files
