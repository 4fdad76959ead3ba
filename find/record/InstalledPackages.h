#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The families of the app packages that are registered for the user, each once. Whether they are installed, the
/// system's package functions say.
QStringList installedPackageFamilies();

/// The key, below HKEY_CURRENT_USER, whose sub-keys are named after the packages.
QString packagesKey();

/// "Maker.Game_1.2.3.0_x64__hash" belongs to "Maker.Game_hash". Empty when that is no package's full name.
QString familyOfPackage(const QString& fullName);

} // namespace Find
