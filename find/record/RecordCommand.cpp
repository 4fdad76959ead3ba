#include "find/record/RecordCommand.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/Plugin.h"
#include "find/cli/CommandLine.h"
#include "find/cli/Console.h"
#include "find/cli/Progress.h"
#include "find/explain/PluginTrace.h"
#include "find/pc/AnsweringPc.h"
#include "find/record/AskedWords.h"
#include "find/record/OutputFile.h"
#include "find/record/PcRecord.h"
#include "find/record/Questions.h"
#include "find/record/RecordingSummary.h"
#include "find/record/UsedParts.h"
#include "recordings/NeutralPc.h"
#include "recordings/PcFile.h"
#include "recordings/PrivateNames.h"

#include <new>

namespace Find {

namespace {

ExitStatus fail(const QString& message) {
    Console::complain(message);
    return failed;
}

/// Empty when the plug-in answered, otherwise why it did not.
QString askPlugin(const QString& file, const Catalogue& games, const PluginTrace& trace) {
    Plugin plugin(file);
    try {
        QString fault;
        const std::unique_ptr<IGameFinderFactory> factory = plugin.createFactory(fault);
        if (factory) {
            Progress progress(QStringLiteral("asking"));
            askEverything(
                *factory, games, [&trace] { return trace.events(); }, progress);
        }
        return fault;
    } catch (const std::bad_alloc&) {
        // Here and not further out: what the plug-in throws is destroyed by code of the plug-in.
        return QStringLiteral("out of memory");
    }
}

PcRecord collect(const TraceEvents& events) {
    Progress progress(QStringLiteral("recording"));
    return PcRecord(events, progress);
}

ExitStatus write(const Recordings::Pc& pc, const QStringList& leftOut,
                 const std::vector<Recordings::PrivateName>& names, bool areNamesKept, OutputFile& file) {
    if (!file.write(Recordings::renderPcFile(pc))) {
        return fail(QStringLiteral("%1: the file cannot be written").arg(file.name()));
    }
    for (const QString& note : describeLosses(leftOut, names)) {
        Console::complain(note);
    }
    return Console::print(summarize(pc, names, file.name(), areNamesKept))
               ? allFound
               : fail(QStringLiteral("the summary could not be written"));
}

} // namespace

ExitStatus recordPc(const Options& options, const Catalogue& games, const Recordings::Pc* chosen) {
    QString fault;
    OutputFile file(options.folder, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    TraceEvents events;
    {
        const PluginTrace trace;
        fault = askPlugin(options.plugin, games, trace);
        events = trace.events();
    }
    if (!fault.isEmpty() || events.empty()) {
        return fail(fault.isEmpty() ? QStringLiteral("the plug-in did not tell what it read") : fault);
    }
    const PcRecord record = collect(events);
    Recordings::NameSources sources = namesOfPc();
    if (sources.profile.isEmpty()) {
        sources.profile = Recordings::profileAmong(record.pc().shellFolders);
    }
    const QString profiles = Recordings::profilesFolderName(sources);
    std::vector<Recordings::PrivateName> names;
    if (!options.keepNames) {
        names = Recordings::choosePrivateNames(sources, askedWords(events, games, record.pc(), profiles),
                                               textsOf(record.pc()));
    }
    Recordings::Pc pc = Recordings::neutralPc(record.pc(), {names, profiles}, mappedContents);
    pc.codePage = chosen ? chosen->codePage : codePageOfPc();
    return write(pc, record.leftOut(), names, options.keepNames, file);
}

} // namespace Find
