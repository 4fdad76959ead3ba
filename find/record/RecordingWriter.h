#pragma once

#include "find/record/NeutralNames.h"
#include "find/record/PcRecord.h"

#include <QString>
#include <QStringList>

namespace Host {

class OutputFolder;
class Progress;

/// Writes what was recorded as a recorded PC (docs/recorded-pc.md), with neutral names in it. False when a file could
/// not be written; `fault` then says which. What can't stand in a recording is added to `leftOut`.
bool writeRecording(const PcRecord& record, const NeutralNames& names, const OutputFolder& folder, Progress& progress,
                    QString& fault, QStringList& leftOut);

} // namespace Host
