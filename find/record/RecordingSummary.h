#pragma once

#include "find/record/PcRecord.h"
#include "find/record/PrivateNames.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Host {

struct Options;

/// What a recording took, for who made it: some lines of text.
QString summarize(const PcRecord& record, const std::vector<PrivateName>& names, const Options& options);

/// What could not be recorded, and which names could not be replaced everywhere, one line each.
QStringList describeLosses(const QStringList& leftOut, const std::vector<PrivateName>& names);

} // namespace Host
