#include "find/record/NeutralRecording.h"

#include "find/pc/AnsweringPc.h"
#include "find/record/AskedWords.h"
#include "find/record/PcRecord.h"
#include "find/record/UsedParts.h"
#include "find/terminal/Progress.h"
#include "recordings/NeutralPc.h"
#include "recordings/PrivateNames.h"

namespace Find {

namespace {

PcRecord collect(const TraceEvents& events) {
    Progress progress(QStringLiteral("recording"));
    return PcRecord(events, progress);
}

} // namespace

NeutralRecording makeRecording(const TraceEvents& events, const Catalogue& games, bool areNamesKept,
                               const Recordings::Pc* chosen) {
    const PcRecord record = collect(events);
    Recordings::NameSources sources = namesOfPc();
    if (sources.profile.isEmpty()) {
        sources.profile = Recordings::profileAmong(record.pc().shellFolders);
    }
    const QString profiles = Recordings::profilesFolderName(sources);
    NeutralRecording recording;
    if (!areNamesKept) {
        recording.names = Recordings::choosePrivateNames(sources, askedWords(events, games, record.pc(), profiles),
                                                         textsOf(record.pc()));
    }
    recording.neutral = Recordings::NeutralNames(recording.names, profiles);
    recording.pc = Recordings::neutralPc(record.pc(), recording.neutral, mappedContents);
    recording.pc.codePage = chosen ? chosen->codePage : codePageOfPc();
    recording.leftOut = record.leftOut();
    return recording;
}

} // namespace Find
