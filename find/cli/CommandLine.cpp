#include "find/cli/CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <vector>

namespace Find {

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

struct Declared {
    const QCommandLineOption plugin{text("plugin"), text("Load this plug-in instead of the one beside the program."),
                                    text("FILE")};
    const QCommandLineOption pc{text("pc"), text("Answer from this recorded PC, and name what is wrong with it."),
                                text("PC")};
    const QCommandLineOption game{text("game"), text("Ask for this game only. Can be given several times."),
                                  text("NAME")};
    const QCommandLineOption json{text("json"), text("Print the answers as JSON (docs/json.md).")};
    const QCommandLineOption all{text("all"), text("With explain: leave out nothing of long lists.")};
    const QCommandLineOption keepNames{
        text("keep-names"), text("With record and report: leave the user's and the machine's name in the recording.")};
    const QCommandLineOption help{{text("h"), text("help")}, text("Print this help.")};
    const QCommandLineOption version{text("version"), text("Print the version.")};
};

void declare(QCommandLineParser& parser, const Declared& declared) {
    parser.setApplicationDescription(
        text("Loads the plug-in Luruludri as a host does and asks it where games and VR runtimes are.\n\n"
             "Exit status: 0 when all games were found, 1 when some were not, 2 when the program was used wrongly or\n"
             "something that it reads is missing or broken."));
    parser.addPositionalArgument(
        text("CATALOGUE"),
        text("The file that lists the games (docs/catalogue.md);\nthe one beside the program unless given."),
        text("[CATALOGUE]"));
    parser.addPositionalArgument(text("runtimes"), text("Ask for the VR runtimes only."), text("| runtimes"));
    parser.addPositionalArgument(text("locate"),
                                 text("Remember the FOLDER that has the game of this KEY\nin the user's settings. "
                                      "The catalogue names its executables."),
                                 text("| locate KEY FOLDER [CATALOGUE]"));
    parser.addPositionalArgument(text("forget"), text("Forget it."), text("| forget KEY"));
    parser.addPositionalArgument(text("record"),
                                 text("Record into a new FILE what finders use of this PC\n(docs/recorded-pc.md), "
                                      "so that it can be looked at\nelsewhere."),
                                 text("| record [FILE] [CATALOGUE]"));
    parser.addPositionalArgument(text("report"),
                                 text("Make a page of the answers, a new FILE for a browser\n(docs/report.md), "
                                      "which carries a recording."),
                                 text("| report [FILE] [CATALOGUE]"));
    parser.addPositionalArgument(text("unpack"), text("Make a FOLDER of a recording, to look at or change it."),
                                 text("| unpack FILE FOLDER"));
    parser.addPositionalArgument(text("explain"),
                                 text("Tell why the game of this NAME was found or not: what each\nfinder looked for, "
                                      "what it saw, why it went on."),
                                 text("| explain NAME [CATALOGUE]"));
    parser.addOptions({declared.plugin, declared.pc, declared.game, declared.json, declared.all, declared.keepNames,
                       declared.help, declared.version});
}

/// One thing that the words of the command line come down to: what they are, and where their values go.
struct CommandForm {
    struct Word {
        const char* title;
        QString Options::*target;
    };

    const char* name; ///< the first word; null for the command that needs none
    Command command;
    std::vector<Word> words; ///< those behind the name
    int needed;              ///< how many of them must be there
};

const std::vector<CommandForm>& commandForms() {
    static const CommandForm::Word catalogue = {"the name of the catalogue", &Options::catalogue};
    static const CommandForm::Word key = {"the key", &Options::key};
    static const std::vector<CommandForm> forms = {
        {nullptr, Command::FindGames, {catalogue}, 0},
        {"runtimes", Command::Runtimes, {}, 0},
        {"locate", Command::Locate, {key, {"the folder", &Options::folder}, catalogue}, 2},
        {"forget", Command::Forget, {key}, 1},
        {"record", Command::Record, {{"the name of the file", &Options::folder}, catalogue}, 0},
        {"report", Command::Report, {{"the name of the file", &Options::folder}, catalogue}, 0},
        {"unpack", Command::Unpack, {{"the name of the file", &Options::file}, {"the folder", &Options::folder}}, 2},
        {"explain", Command::Explain, {{"the game's name", &Options::name}, catalogue}, 1},
    };
    return forms;
}

/// The form that the words have; `words` are then those behind its name.
const CommandForm& formOf(QStringList& words) {
    const std::vector<CommandForm>& forms = commandForms();
    const auto named = std::find_if(forms.begin(), forms.end(), [&](const CommandForm& form) {
        return form.name != nullptr && words.value(0) == QLatin1String(form.name);
    });
    if (named == forms.end()) {
        return forms.front();
    }
    words.removeFirst();
    return *named;
}

/// The first fault in the words behind a command's name; empty when there is none.
QString findFault(const CommandForm& form, const QStringList& words) {
    for (int i = 0; i < static_cast<int>(form.words.size()); ++i) {
        const QString title = text(form.words.at(static_cast<std::size_t>(i)).title);
        if (i >= words.size() && i < form.needed) {
            return text("%1: %2 is missing").arg(text(form.name), title);
        }
        if (i < words.size() && words.at(i).trimmed().isEmpty()) {
            return title + text(" is empty");
        }
    }
    const int most = static_cast<int>(form.words.size());
    return words.size() > most ? text("surplus argument \"%1\"").arg(words.at(most)) : QString();
}

/// The first fault in options that are all known; empty when there is none.
QString findFault(const CommandForm& form, const QCommandLineParser& parser, const Declared& declared) {
    for (const QCommandLineOption* option : {&declared.plugin, &declared.pc, &declared.game}) {
        if (parser.isSet(*option) && parser.values(*option).contains(QString())) {
            return text("--%1: the value is empty").arg(option->names().constFirst());
        }
    }
    const bool hasAnswers = form.command == Command::FindGames || form.command == Command::Runtimes;
    if (parser.isSet(declared.game) && form.command != Command::FindGames) {
        return text("--game: not with %1").arg(text(form.name));
    }
    if (parser.isSet(declared.all) && form.command != Command::Explain) {
        return text("--all: only with explain");
    }
    if (parser.isSet(declared.json) && !hasAnswers) {
        return text("--json: not with %1").arg(text(form.name));
    }
    const bool isRecording = form.command == Command::Record || form.command == Command::Report;
    if (parser.isSet(declared.keepNames) && !isRecording) {
        return text("--keep-names: only with record and report");
    }
    return QString();
}

Options readOptions(const CommandForm& form, const QStringList& words, const QCommandLineParser& parser,
                    const Declared& declared) {
    Options options;
    const QDir programFolder(QCoreApplication::applicationDirPath());
    options.command = form.command;
    options.catalogue = programFolder.filePath(text("catalogue.json"));
    for (int i = 0; i < words.size(); ++i) {
        options.*form.words.at(static_cast<std::size_t>(i)).target = words.at(i);
    }
    // Without a suffix: the library loader knows what libraries end in on this system.
    options.plugin =
        parser.isSet(declared.plugin) ? parser.value(declared.plugin) : programFolder.filePath(text("Luruludri"));
    if (parser.isSet(declared.pc)) {
        options.pc = parser.value(declared.pc);
    }
    options.games = parser.values(declared.game);
    if (form.command == Command::Explain) {
        options.games = QStringList{options.name};
    }
    options.json = parser.isSet(declared.json);
    options.keepNames = parser.isSet(declared.keepNames);
    options.all = parser.isSet(declared.all);
    return options;
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
    const Declared declared;
    QCommandLineParser parser;
    declare(parser, declared);

    if (!parser.parse(arguments)) {
        return {CommandLine::Action::Refuse, {}, parser.errorText()};
    }
    if (parser.isSet(declared.help)) {
        return {CommandLine::Action::PrintText, {}, parser.helpText().trimmed() + QLatin1Char('\n')};
    }
    if (parser.isSet(declared.version)) {
        const QString version = text("%1 %2\n");
        return {CommandLine::Action::PrintText,
                {},
                version.arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion())};
    }
    QStringList words = parser.positionalArguments();
    const CommandForm& form = formOf(words);
    for (const QString& fault : {findFault(form, parser, declared), findFault(form, words)}) {
        if (!fault.isEmpty()) {
            return {CommandLine::Action::Refuse, {}, fault};
        }
    }
    return {CommandLine::Action::Run, readOptions(form, words, parser, declared), {}};
}

} // namespace Find
