#include "find/cli/ReportCommand.h"

#include "find/cli/CommandLine.h"
#include "find/record/NeutralRecording.h"
#include "find/record/OutputFile.h"
#include "find/record/RecordingSummary.h"
#include "find/record/Survey.h"
#include "find/report/ReportData.h"
#include "find/report/ReportPage.h"
#include "find/terminal/Console.h"
#include "find/terminal/OneLine.h"
#include "recordings/PcFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace Find {

namespace {

ExitStatus fail(const QString& message) {
    Console::complain(message);
    return failed;
}

ReportOrigin originOf(const Options& options, const OutputFile& file) {
    return {QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
            QCoreApplication::applicationVersion(), QFileInfo(options.catalogue).fileName(),
            fileForReplay(QFileInfo(file.name()).fileName()), options.keepNames};
}

/// For who made it: the names that were replaced, which the page doesn't tell, included.
QString describe(const ReportData& data, const NeutralRecording& recording, const OutputFile& file, bool areNamesKept) {
    int found = 0;
    for (const ReportedGame& game : data.games) {
        found += game.answer.found ? 1 : 0;
    }
    return QStringLiteral("%1 of %2 games found\n").arg(found).arg(data.games.size()) +
           summarize(recording.pc, recording.names, file.name(), areNamesKept);
}

} // namespace

ExitStatus reportPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                    const QStringList& problems) {
    QString fault;
    OutputFile file(options.folder, QLatin1String(".html"), fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const Survey survey = surveyPc(options.plugin, games, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const NeutralRecording recording = makeRecording(survey.events, games, options.keepNames, chosen);
    const ReportData data = gatherReport(survey, games, recording, problems);
    const QByteArray page = renderReportPage(data, originOf(options, file), Recordings::renderPcFile(recording.pc));
    fault = file.write(page);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    for (const QString& note : describeLosses(recording.leftOut, recording.names)) {
        Console::complain(note);
    }
    return Console::print(describe(data, recording, file, options.keepNames))
               ? allFound
               : fail(QStringLiteral("the summary could not be written"));
}

} // namespace Find
