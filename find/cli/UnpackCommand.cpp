#include "find/cli/Commands.h"

#include "find/answers/ChosenRecording.h"
#include "find/cli/CommandLine.h"
#include "find/record/OutputFolder.h"
#include "find/record/WriteFault.h"
#include "find/terminal/Console.h"

#include <QFileInfo>

#include <cerrno>

namespace Find {

namespace {

Recordings::Recording readFrom(const QString& file) {
    if (file != standardInput()) {
        return Recordings::readRecording(QFileInfo(file).absoluteFilePath().toUtf8());
    }
    Recordings::Recording none;
    if (const std::optional<QByteArray> input = readInput(none.fault)) {
        return Recordings::parseRecording(*input, inputName());
    }
    return none;
}

} // namespace

ExitStatus unpackPc(const Options& options) {
    const Recordings::Recording recording = readFrom(options.file);
    const QString file = shownName(options.file);
    if (!recording.fault.isEmpty()) {
        return fail({file, recording.faultLine, 0, recording.fault});
    }
    QString fault;
    OutputFolder folder(options.folder, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    QStringList leftOut;
    const QByteArray unwritten = Recordings::writeRecordingFolder(recording.pc, folder.path().toUtf8(), leftOut);
    if (!unwritten.isEmpty()) {
        return fail(
            QStringLiteral("%1: the file cannot be written: %2").arg(QString::fromUtf8(unwritten), causeOf(errno)));
    }
    folder.keep();
    for (const Complaint& problem : describeProblems(file, recording.problems)) {
        Console::complain(problem);
    }
    for (const QString& name : qAsConst(leftOut)) {
        Console::complain(QLatin1String("no registry file can have this name: ") + name);
    }
    return recording.problems.empty() && leftOut.isEmpty() ? allFound : failed;
}

} // namespace Find
