#pragma once

#include <QString>

namespace Recordings {

/// `name` in the form in which Windows compares names of keys, values and files: each UTF-16 unit in upper case. Two
/// names are the same when their folded forms are equal; lists are in the order of the folded forms.
QString foldName(const QString& name);

/// The key, below HKEY_CURRENT_USER, whose sub-keys have the full names of the app packages that are registered for the
/// user.
QString packagesKey();

/// "Maker.Game_1.2.3.0_x64__hash" belongs to "Maker.Game_hash". Empty when that is no package's full name.
QString familyOfPackage(const QString& fullName);

} // namespace Recordings
