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
    Complaint complaint{QString()};
    PcFromInput input;
    const std::optional<QString> file = options.file == standardInput() ? input.file(complaint) : options.file;
    if (!file) {
        return fail(complaint);
    }
    const Recordings::Recording recording = Recordings::readRecording(QFileInfo(*file).absoluteFilePath().toUtf8());
    if (!recording.fault.isEmpty()) {
        return fail(input.shown({*file, recording.faultLine, 0, recording.fault}));
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
    for (const Complaint& problem : describeProblems(*file, recording.problems)) {
        Console::complain(input.shown(problem));
    }
    for (const QString& name : qAsConst(leftOut)) {
        Console::complain(QLatin1String("no registry file can have this name: ") + name);
    }
    return recording.problems.empty() && leftOut.isEmpty() ? allFound : failed;
}

} // namespace Find
