#include "find/record/RecordCommand.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/Plugin.h"
#include "find/cli/CommandLine.h"
#include "find/cli/Console.h"
#include "find/cli/Progress.h"
#include "find/explain/PluginTrace.h"
#include "find/record/OutputFolder.h"
#include "find/record/Questions.h"
#include "find/record/RecordedTexts.h"
#include "find/record/RecordingSummary.h"
#include "find/record/RecordingWriter.h"

#include <new>

namespace Host {

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

ExitStatus write(const PcRecord& record, const std::vector<PrivateName>& names, const NeutralNames& neutral,
                 const Options& options, OutputFolder& folder) {
    QString fault;
    QStringList leftOut = record.leftOut();
    Progress progress(QStringLiteral("writing"));
    const bool isWritten = writeRecording(record, neutral, folder, progress, fault, leftOut);
    progress.finish();
    if (!isWritten) {
        return fail(QStringLiteral("%1: %2 cannot be written").arg(options.folder, fault));
    }
    folder.keep();
    for (const QString& note : describeLosses(leftOut, names)) {
        Console::complain(note);
    }
    return Console::print(summarize(record, names, options)) ? allFound
                                                             : fail(QStringLiteral("the summary could not be written"));
}

} // namespace

ExitStatus recordPc(const Options& options, const Catalogue& games) {
    QString fault;
    OutputFolder folder(options.folder, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const PluginTrace trace;
    fault = askPlugin(options.plugin, games, trace);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const TraceEvents events = trace.events();
    if (events.empty()) {
        return fail(QStringLiteral("the plug-in did not tell what it read"));
    }
    const PcRecord record = collect(events);
    const NameSources sources = nameSources();
    const std::vector<PrivateName> names = options.keepNames
                                               ? std::vector<PrivateName>()
                                               : choosePrivateNames(sources, collectTexts(events, games, record));
    const NeutralNames neutral(names, profilesFolderName(sources));
    return write(record, names, neutral, options, folder);
}

} // namespace Host
