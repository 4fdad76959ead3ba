#include "find/cli/Program.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/Answers.h"
#include "find/answers/AnswersText.h"
#include "find/answers/ChosenRecording.h"
#include "find/answers/GivenFolder.h"
#include "find/answers/Plugin.h"
#include "find/catalogue/Catalogue.h"
#include "find/cli/CommandForms.h"
#include "find/cli/CommandLine.h"
#include "find/cli/Commands.h"
#include "find/cli/Dialogue.h"
#include "find/cli/JsonReply.h"
#include "find/cli/ShellTexts.h"
#include "find/explain/Explanation.h"
#include "find/explain/ExplanationText.h"
#include "find/explain/PluginTrace.h"
#include "find/pc/System.h"
#include "find/terminal/Console.h"
#include "find/terminal/DidYouMean.h"
#include "find/terminal/Progress.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>
#include <functional>
#include <optional>

namespace Find {

namespace {

/// What may have been meant by the word that was taken for the name of a catalogue.
QString meantByCatalogue(const Options& options) {
    const QString& word = options.catalogue;
    if (QStringList{QStringLiteral("/?"), QStringLiteral("/h"), QStringLiteral("/help")}.contains(word.toLower())) {
        return QStringLiteral("; did you mean \"--help\"?");
    }
    if (word.contains(QLatin1Char('/')) || word.contains(QDir::separator()) || word.endsWith(QLatin1String(".json"))) {
        return {}; // nothing else
    }
    if (options.command == Command::Explain) {
        return QStringLiteral("; did you mean explain \"%1 %2\"?").arg(options.name, word);
    }
    const QStringList words{QStringLiteral("--help"), QStringLiteral("--version")};
    return options.command == Command::FindGames ? didYouMean(word, commandNames() + words) : QString();
}

void complainOfCatalogue(const Options& options, const CatalogueFaults& faults) {
    constexpr std::size_t most = 100;
    const QString meant = QFileInfo::exists(options.catalogue) ? QString() : meantByCatalogue(options);
    for (std::size_t i = 0; i < std::min(faults.size(), most); ++i) {
        const CatalogueFault& fault = faults[i];
        Console::complain({shownName(options.catalogue), fault.line, fault.column, fault.message + meant});
    }
    if (faults.size() > most) {
        Console::complain(
            {shownName(options.catalogue), 0, 0, QStringLiteral("and %1 more faults").arg(faults.size() - most)});
    }
}

/// What a command needs to know of the catalogue.
struct Chosen {
    Catalogue games;   ///< that the command is about; none for a game to explain that the catalogue does not have
    QStringList known; ///< the names of all games
};

/// No value after a fault, of which the user has been told.
std::optional<Chosen> loadGames(const Options& options) {
    if (options.command == Command::List || options.command == Command::Runtimes ||
        options.command == Command::Forget) {
        return Chosen();
    }
    CatalogueFaults faults;
    const std::optional<Catalogue> catalogue = readCatalogue(options.catalogue, faults);
    if (!catalogue) {
        complainOfCatalogue(options, faults);
        return std::nullopt;
    }
    const QStringList known = namesOf(*catalogue);
    QStringList unknown;
    const std::optional<Catalogue> games = selectGames(*catalogue, options.games, unknown);
    if (games || options.command == Command::Explain) {
        return Chosen{games.value_or(Catalogue()), known};
    }
    for (const QString& name : qAsConst(unknown)) {
        Console::complain({shownName(options.catalogue), 0, 0,
                           QStringLiteral("no game is named \"%1\"").arg(name) + didYouMean(name, known)});
    }
    return std::nullopt;
}

ExitStatus answer(IGameFinderFactory& factory, const Options& options, const Catalogue& games) {
    Progress progress(QStringLiteral("asking"));
    const Answers answers = ask(factory, games, progress);
    progress.finish();
    const bool isPrinted = options.json ? printReply(jsonOf(answers))
                                        : Console::print(renderTables(answers, Console::terminal(Stream::Output)));
    return afterPrinting(isPrinted, answers.allGamesFound() ? allFound : someNotFound);
}

using Ask = std::function<ExitStatus(IGameFinderFactory& factory)>;

ExitStatus askPlugin(const Options& options, const Ask& ask) {
    ExitStatus status = failed;
    QString fault;
    withPlugin(options.plugin, fault, [&](IGameFinderFactory& factory) { status = ask(factory); });
    return fault.isEmpty() ? status : fail(fault);
}

ExitStatus explainWithin(IGameFinderFactory& factory, const Options& options, const Game& game, PluginTrace& trace) {
    const GameAnswer answer = askForGame(factory, game);
    const TraceEvents events = trace.take();
    if (events.empty()) {
        return fail(QStringLiteral("%1: this plug-in writes no trace").arg(options.plugin));
    }
    const Explanation explanation = explain(game, answer, events, options.all);
    const ExitStatus status = answer.found ? allFound : someNotFound;
    if (!options.json) {
        return print(renderExplanation(explanation, Console::terminal(Stream::Output)), status);
    }
    QJsonObject reply = jsonOf(explanation);
    reply.insert(QStringLiteral("game"), jsonOf(answer));
    return afterPrinting(printReply(reply), status);
}

ExitStatus explainGame(const Options& options, const Game& game) {
    PluginTrace trace;
    return askPlugin(options,
                     [&](IGameFinderFactory& factory) { return explainWithin(factory, options, game, trace); });
}

/// Why the user's choice cannot be changed; empty when it can.
QString refusalToChoose(const Options& options, const std::optional<Recordings::Recording>& recording) {
    const bool isChange = options.command == Command::Locate || options.command == Command::Forget;
    if (!isChange || !recording) {
        return options.command == Command::Locate ? faultOfFolder(options.folder) : QString();
    }
    const QString pc = options.pc.value_or(qEnvironmentVariable(Recordings::environmentVariable));
    const QString change =
        QStringLiteral("a recorded PC is never written to; to try a folder, change \"userLocations\" in ");
    if (QFileInfo(pc).isDir()) {
        return change + QDir(pc).filePath(QStringLiteral("pc.json"));
    }
    return QFileInfo(pc).suffix() == QLatin1String("json")
               ? change + pc
               : change + QLatin1String("the folder that \"unpack\" makes of ") + pc;
}

ExitStatus act(const Options& options, const Chosen& chosen, const Recordings::Pc* pc, const QStringList& problems) {
    const Catalogue& games = chosen.games;
    switch (options.command) {
    case Command::Explain:
        return games.empty() ? lookUp(options, chosen.known) : explainGame(options, games.front());
    case Command::List:
        return listPc(options);
    case Command::Record:
        return recordPc(options, games, pc);
    case Command::Report:
        return reportPc(options, games, pc, problems);
    case Command::Locate:
        return askPlugin(options, [&](IGameFinderFactory& factory) { return locateGame(factory, options, games); });
    case Command::Forget:
        return askPlugin(options, [&](IGameFinderFactory& factory) { return forgetGame(factory, options); });
    default:
        return askPlugin(options, [&](IGameFinderFactory& factory) { return answer(factory, options, games); });
    }
}

ExitStatus run(const Options& options) {
    const std::optional<Chosen> chosen = loadGames(options);
    if (!chosen) {
        return failed;
    }
    Complaint fault{QString()};
    PcFromInput input;
    const std::optional<QString> path = options.pc == standardInput() && !isPcItself() ? input.file(fault) : options.pc;
    const std::optional<Recordings::Recording> pc =
        fault.message.isEmpty() ? chooseRecordedPc(path, fault) : std::optional<Recordings::Recording>();
    if (fault.message.isEmpty()) {
        fault.message = refusalToChoose(options, pc);
    }
    if (!fault.message.isEmpty()) {
        return fail(input.shown(fault));
    }
    const QString name = path.value_or(qEnvironmentVariable(Recordings::environmentVariable));
    if (!pc && !isPcItself() && options.isOwnPlugin) {
        Console::complain(
            QStringLiteral("no recorded PC is chosen (--pc), so this system is asked, which is not Windows"));
    }
    QStringList problems;
    for (const Complaint& problem : describeProblems(name, pc ? pc->problems : std::vector<Recordings::Problem>())) {
        Console::complain(input.shown(problem));
        problems.append(input.shown(problem).text());
    }
    const ExitStatus status = act(options, *chosen, pc ? &pc->pc : nullptr, problems);
    return problems.isEmpty() ? status : failed;
}

ExitStatus printCompletion(const QString& shell) {
    const QString completion = completionFor(shell.toLower());
    return completion.isEmpty() ? fail(QStringLiteral("completion: there is none for \"%1\", only for %2")
                                           .arg(shell, shells().join(QLatin1String(", "))) +
                                       didYouMean(shell, shells()))
                                : print(completion, allFound);
}

ExitStatus runOrPrint(const Options& options) {
    switch (options.command) {
    case Command::Completion:
        return printCompletion(options.shell);
    case Command::Manual:
        return print(manualPage(), allFound);
    case Command::Unpack:
        return unpackPc(options);
    default:
        return run(options);
    }
}

ExitStatus follow(const CommandLine& commandLine, bool isJson) {
    switch (commandLine.action) {
    case CommandLine::Action::Run:
        return runOrPrint(commandLine.options);
    case CommandLine::Action::PrintText:
        return print(commandLine.text, allFound);
    case CommandLine::Action::Refuse:
        break;
    }
    Console::complain(commandLine.text);
    return isJson ? failed : fail(QLatin1String("try ") + commandLine.helper);
}

DialogueParts::Made makeReportOnDesktop() {
    Console::keepComplaints(); // they are told within the dialogue
    const Options options = parseCommandLine({QString(), QStringLiteral("report")}).options;
    const std::optional<Chosen> chosen = loadGames(options);
    const MadeReport made = chosen ? makeReport(options, chosen->games, nullptr, {}) : MadeReport();
    QStringList notes = made.notes;
    for (const Complaint& complaint : Console::takeComplaints()) {
        notes.append(complaint.text());
    }
    return {made.file, chosen ? made.fault : notes.join(QLatin1Char('\n')), notes};
}

} // namespace

ExitStatus runDialogue() {
    DialogueParts parts;
    parts.say = [](const QString& text) { Console::print(text); };
    parts.readLine = &Console::readLine;
    parts.makeReport = &makeReportOnDesktop;
    parts.open = &openFile;
    parts.waitForKey = &Console::waitForKey;
    return talk(parts);
}

ExitStatus failForMemory() {
    return fail(QStringLiteral("out of memory"));
}

ExitStatus runProgram(const QStringList& arguments) {
    if (arguments.size() < 2 && Console::isOwnWindow()) {
        return runDialogue();
    }
    const bool isJson = arguments.contains(QLatin1String("--json"));
    if (isJson) {
        Console::keepComplaints(); // they are told in the reply
    }
    const ExitStatus status = follow(parseCommandLine(arguments), isJson);
    printLeftComplaints();
    return status;
}

} // namespace Find
