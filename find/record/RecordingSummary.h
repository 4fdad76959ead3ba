#pragma once

#include "recordings/NeutralNames.h"
#include "recordings/Pc.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// What a recording took, for who made it: some lines of text.
QString summarize(const Recordings::Pc& pc, const std::vector<Recordings::PrivateName>& names, const QString& file,
                  bool areNamesKept);

/// What could not be recorded, and which names could not be replaced everywhere, one line each.
QStringList describeLosses(const QStringList& leftOut, const std::vector<Recordings::PrivateName>& names);

} // namespace Find
