#pragma once

#include "recordings/Json.h"
#include "recordings/Pc.h"
#include "recordings/Problem.h"

#include <QByteArray>

#include <vector>

namespace Recordings {

/// Whether `json` is the one file that holds a whole PC, of whatever version.
bool isPcFile(const JsonValue& json);

/// Reads the one file. `fault` says why it can't be read at all; other faults cost only what has them and are added to
/// `problems` under `file`.
Pc readPcFile(const JsonValue& json, const QString& file, QString& fault, std::vector<Problem>& problems);

/// The whole PC in one text.
QByteArray renderPcFile(const Pc& pc);

} // namespace Recordings
