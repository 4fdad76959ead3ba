#pragma once

#include "recordings/Registry.h"

#include <QByteArray>
#include <QStringList>

namespace Recordings {

/// The registry as a file of version 5.00, as regedit writes it. A key whose name can't stand in such a file is left
/// out, with its values, and added to `leftOut`.
QByteArray renderRegFile(const Registry& registry, QStringList& leftOut);

} // namespace Recordings
