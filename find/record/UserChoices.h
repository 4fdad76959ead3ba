#pragma once

#include <QStringList>

namespace Find {

/// The keys of all games for which the user chose a folder.
QStringList userChoiceKeys();

} // namespace Find
