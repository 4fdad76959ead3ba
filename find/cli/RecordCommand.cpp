#include "find/cli/Commands.h"

#include "find/cli/CommandLine.h"
#include "find/record/NeutralRecording.h"
#include "find/record/OutputFile.h"
#include "find/record/RecordingSummary.h"
#include "find/record/Survey.h"
#include "find/terminal/Console.h"
#include "recordings/PcFile.h"

namespace Find {

namespace {

ExitStatus write(const NeutralRecording& recording, bool areNamesKept, OutputFile& file) {
    const QString fault = file.write(Recordings::renderPcFile(recording.pc));
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    for (const QString& note : describeLosses(recording.leftOut, recording.names)) {
        Console::complain(note);
    }
    return print(summarize(recording.pc, recording.names, file.name(), areNamesKept), allFound);
}

} // namespace

ExitStatus recordPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen) {
    QString fault;
    OutputFile file(options.folder, QLatin1String(".json"), fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const Survey survey = surveyPc(options.plugin, games, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    return write(makeRecording(survey.events, games, options.keepNames, chosen), options.keepNames, file);
}

} // namespace Find
