#pragma once

#include "recordings/NeutralNames.h"
#include "recordings/Pc.h"

#include <QByteArray>

#include <functional>

namespace Recordings {

/// Gives the text that stands in the place of another.
using MapText = std::function<QString(const QString& text)>;

/// Gives what a file with this name holds when each text in its contents is mapped.
using MapContents = std::function<QByteArray(const QString& name, const QByteArray& contents, const MapText& map)>;

/// The same PC with neutral names in the place of private ones: in keys, values, names of files, contents of files,
/// targets of shortcuts and all other texts. Packages keep theirs, which name their makers; with other ones they would
/// not be found.
Pc neutralPc(const Pc& pc, const NeutralNames& names, const MapContents& mapContents);

} // namespace Recordings
