#include "find/cli/Commands.h"

#include "find/cli/CommandLine.h"
#include "find/list/InstalledGames.h"
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

ReportOrigin originOf(const Options& options, const OutputFile& file) {
    return {QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
            QCoreApplication::applicationVersion(), QFileInfo(options.catalogue).fileName(),
            fileForReplay(QFileInfo(file.name()).fileName()), options.keepNames};
}

QString describe(const ReportData& data, const NeutralRecording& recording, const OutputFile& file, bool areNamesKept) {
    int found = 0;
    for (const ReportedGame& game : data.games) {
        found += game.answer.found ? 1 : 0;
    }
    return QStringLiteral("%1 of %2 games found\n").arg(found).arg(data.games.size()) +
           summarize(recording.pc, recording.names, file.name(), areNamesKept);
}

} // namespace

MadeReport makeReport(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                      const QStringList& problems) {
    MadeReport made;
    OutputFile file(options.folder, QLatin1String(".html"), made.fault);
    if (!made.fault.isEmpty()) {
        return made;
    }
    std::vector<InstalledEntry> shown;
    const auto askForNames = [&shown](IGameFinderFactory& factory, PluginTrace& trace, const Survey& survey) {
        shown = shownEntries(factory, trace, installedEntries(survey.events));
    };
    const Survey survey = surveyPc(options.plugin, games, made.fault, askForNames);
    if (!made.fault.isEmpty()) {
        return made;
    }
    const NeutralRecording recording = makeRecording(survey.events, games, options.keepNames, chosen);
    const ReportData data = gatherReport(survey, shown, games, recording, problems);
    made.fault = file.write(renderReportPage(data, originOf(options, file), Recordings::renderPcFile(recording.pc)));
    made.file = file.name();
    made.summary = describe(data, recording, file, options.keepNames);
    made.notes = describeLosses(recording.leftOut, recording.names);
    return made;
}

ExitStatus reportPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen,
                    const QStringList& problems) {
    const MadeReport made = makeReport(options, games, chosen, problems);
    if (!made.fault.isEmpty()) {
        return fail(made.fault);
    }
    for (const QString& note : made.notes) {
        Console::complain(note);
    }
    return print(made.summary, allFound);
}

} // namespace Find
