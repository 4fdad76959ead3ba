#pragma once

#include <QString>
#include <QStringList>

namespace Find {

/// The executables below a folder that may start the game of this name, as paths below it, the likeliest first; at most
/// three. Nothing of what only installs, removes or repairs, unless there is nothing else. Empty when there is none.
QStringList gameExecutables(const QString& folder, const QString& name);

/// Of all executables of a folder, as paths below it.
QStringList likeliestExecutables(const QStringList& executables, const QString& name);

} // namespace Find
