#pragma once

#include <QStringList>

namespace Host {

/// The keys of all games for which the user chose a folder.
QStringList userChoiceKeys();

} // namespace Host
