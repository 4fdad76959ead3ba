#pragma once

#include "platform/Recording.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Host {

/// What choosing a recorded PC came to.
struct RecordedPc {
    QString fault;        ///< why it cannot be used at all; empty when it can, or when none was chosen
    QStringList problems; ///< what in it cannot be read, one line each
};

/// Chooses the recorded PC in `folder` for this process and looks through it. Without a folder the choice of the
/// environment stands. To be called before the plug-in is loaded.
RecordedPc chooseRecordedPc(const std::optional<QString>& folder);

/// The problems as "FILE:LINE: message", the files named as the user named the folder.
QStringList describeProblems(const QString& folder, const std::vector<Recordings::Problem>& problems);

} // namespace Host
