#include "find/cli/UnpackCommand.h"

#include "find/answers/ChosenRecording.h"
#include "find/cli/CommandLine.h"
#include "find/record/OutputFolder.h"
#include "find/record/WriteFault.h"
#include "find/terminal/Console.h"

#include <QFileInfo>

#include <cerrno>

namespace Find {

ExitStatus unpackPc(const Options& options) {
    const QString path = QFileInfo(options.file).absoluteFilePath();
    const Recordings::Recording recording = Recordings::readRecording(path.toUtf8());
    if (!recording.fault.isEmpty()) {
        return fail(options.file + QLatin1String(": ") + recording.fault);
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
    for (const QString& problem : describeProblems(options.file, recording.problems)) {
        Console::complain(problem);
    }
    for (const QString& name : qAsConst(leftOut)) {
        Console::complain(QLatin1String("no registry file can have this name: ") + name);
    }
    return recording.problems.empty() && leftOut.isEmpty() ? allFound : failed;
}

} // namespace Find
