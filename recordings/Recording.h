#pragma once

#include "recordings/Pc.h"
#include "recordings/Problem.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace Recordings {

/// The environment variable that names the recorded PC, a file or a folder. Read whenever the library is asked, so a
/// host sets it before it makes a factory.
constexpr const char* environmentVariable = "LURULUDRI_PC";

/// What reading a recorded PC came to.
struct Recording {
    Pc pc;
    QString fault;                 ///< why there is none to answer from; `pc` is then empty
    int faultLine = 0;             ///< where in the file, counted from 1; 0 when that is not known
    std::vector<Problem> problems; ///< what in it can't be read, in the order of its files
};

/// Reads a recorded PC out of the contents of a file, the one file or a page that carries it. Its problems call the
/// file `name`.
Recording parseRecording(const QByteArray& contents, const QString& name);

/// Reads the recorded PC at `path`, as HostFiles takes it: the one file, a page that carries it, or a folder with
/// `registry`, `drives` or `pc.json` (docs/recorded-pc.md).
Recording readRecording(const QByteArray& path);

/// The recorded PCs that lie directly in the folder, by name.
std::vector<QByteArray> recordingsIn(const QByteArray& folder);

/// Writes the PC as a folder. `leftOut` says what can't stand there. Empty, or the path of what couldn't be written.
QByteArray writeRecordingFolder(const Pc& pc, const QByteArray& folder, QStringList& leftOut);

} // namespace Recordings
