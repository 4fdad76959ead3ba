#pragma once

#include "recordings/NeutralNames.h"
#include "recordings/Pc.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Find {

/// How much of one thing a recording holds: "registry", "15 keys, 25 values".
struct RecordedAmount {
    QString title;
    QString text;
};

std::vector<RecordedAmount> amountsOf(const Recordings::Pc& pc);

/// The file's name as a shell on Linux wants it where it is replayed.
QString fileForReplay(const QString& file);

/// What a recording took, for who made it: some lines of text.
QString summarize(const Recordings::Pc& pc, const std::vector<Recordings::PrivateName>& names, const QString& file,
                  bool areNamesKept);

/// What could not be recorded, and which names could not be replaced everywhere, one line each.
QStringList describeLosses(const QStringList& leftOut, const std::vector<Recordings::PrivateName>& names);

} // namespace Find
