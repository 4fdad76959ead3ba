#include "find/cli/CommandLine.h"

#include "find/answers/ChosenRecording.h"
#include "find/answers/GivenFolder.h"
#include "find/cli/CommandTree.h"
#include "find/terminal/DidYouMean.h"

#include <QFileInfo>

#include <algorithm>

namespace Find {

namespace {

/// The arguments as CLI11 takes them: the last first.
std::vector<std::string> reversed(const QStringList& arguments) {
    std::vector<std::string> words;
    for (int i = arguments.size() - 1; i > 0; --i) {
        const QString& argument = arguments.at(i);
        const bool isEmptyValue = argument.startsWith(QLatin1String("--")) && argument.endsWith(QLatin1Char('='));
        if (isEmptyValue) { // where CLI11 would take the next argument
            words.emplace_back();
        }
        words.push_back((isEmptyValue ? argument.chopped(1) : argument).toStdString());
    }
    return words;
}

QString unknownOption(const QString& given, const CommandForm& form) {
    const QString name = given.section(QLatin1Char('='), 0, 0);
    QStringList known = {QStringLiteral("--help"), QStringLiteral("--version")};
    for (const Switch* const one : allSwitches()) {
        if (name == QLatin1String(one->name)) {
            return QStringLiteral("%1 does not take %2").arg(QLatin1String(form.name), name);
        }
        if (hasSwitch(form, *one)) {
            known.append(QLatin1String(one->name));
        }
    }
    return QStringLiteral("unknown option \"%1\"").arg(name) + didYouMean(name, known);
}

/// What is wrong with a word too many.
QString surplus(const QString& word, const CommandTree& tree) {
    const std::string first = tree.app().get_subcommands().empty() ? tree.app()["CATALOGUE"]->results().front() : "";
    const QString command = QString::fromStdString(first);
    const QString meant = didYouMean(command, commandNames() + QStringList{QStringLiteral("--help")});
    if (!meant.isEmpty() && !QFileInfo::exists(command)) {
        return QStringLiteral("unknown command \"%1\"").arg(command) + meant;
    }
    return QStringLiteral("unexpected argument \"%1\"").arg(word);
}

/// What is wrong with the first argument that CLI11 could not place.
QString describeExtra(const CommandTree& tree) {
    std::vector<std::string> extras = tree.app().remaining(true);
    extras.erase(std::remove(extras.begin(), extras.end(), "--"), extras.end());
    const QString extra = QString::fromStdString(extras.front());
    return extra.startsWith(QLatin1Char('-')) ? unknownOption(extra, tree.form()) : surplus(extra, tree);
}

CommandLine refusal(const CommandTree& tree, const QString& fault) {
    const bool hasCommand = !tree.app().get_subcommands().empty();
    const QString command = hasCommand ? QLatin1Char(' ') + QLatin1String(tree.form().name) : QString();
    return {CommandLine::Action::Refuse, {}, fault, QStringLiteral("luruludri-find%1 --help").arg(command)};
}

/// "KEY is required" and "--game: 1 required NAME missing" in the words of the other faults.
QString describeMissing(const CLI::ParseError& error, const CommandForm& form) {
    QString message = QString::fromUtf8(error.what());
    if (message.endsWith(QLatin1String(" is required"))) {
        message = QLatin1String(form.name) + QLatin1String(": ") + message;
        return message.replace(QLatin1String(" is required"), QLatin1String(" is missing"));
    }
    return message.replace(QLatin1String(": 1 required "), QLatin1String(": "))
        .replace(QLatin1String(" missing"), QLatin1String(" is missing"));
}

/// Takes the file or folder for what was meant; false when more came in with it than there is a place for.
bool separateFolder(const CommandTree& tree, Options& options) {
    const GivenFolder given = givenFolder(options.folder);
    options.folder = given.folder;
    if (given.rest.isEmpty()) {
        return true;
    }
    const CLI::Option* const catalogue = tree.app().get_subcommands().front()->get_option_no_throw("CATALOGUE");
    const bool hasPlace = catalogue != nullptr && catalogue->count() == 0;
    options.catalogue = hasPlace ? given.rest : options.catalogue;
    return hasPlace;
}

CommandLine understood(const CommandTree& tree) {
    QString fault;
    Options options = tree.options(fault);
    if (options.command == Command::Explain) {
        options.games = QStringList{options.name};
    }
    if (!separateFolder(tree, options)) {
        fault = QStringLiteral("unexpected argument \"%1\"").arg(options.catalogue);
    }
    if (options.command == Command::Locate) {
        options.folder = withoutLastSeparators(options.folder);
    } else if (options.folder == standardInput()) {
        fault = QStringLiteral("%1: a file or a folder is made, nothing is written to standard output")
                    .arg(QLatin1String(tree.form().name));
    }
    if (options.pc == standardInput() && options.catalogue == standardInput()) {
        fault = QStringLiteral("standard input cannot be both the recorded PC and the catalogue");
    }
    return fault.isEmpty() ? CommandLine{CommandLine::Action::Run, options, {}, {}} : refusal(tree, fault);
}

} // namespace

QString shownName(const QString& file) {
    return file == standardInput() ? inputName() : file;
}

CommandLine parseCommandLine(const QStringList& arguments) {
    CommandTree tree;
    try {
        tree.app().parse(reversed(arguments));
    } catch (const CLI::CallForHelp&) {
        return {CommandLine::Action::PrintText, {}, QString::fromStdString(tree.app().help()), {}};
    } catch (const CLI::CallForVersion& version) {
        return {CommandLine::Action::PrintText, {}, QString::fromUtf8(version.what()) + QLatin1Char('\n'), {}};
    } catch (const CLI::ExtrasError&) {
        return refusal(tree, describeExtra(tree));
    } catch (const CLI::ParseError& error) {
        return refusal(tree, describeMissing(error, tree.form()));
    }
    return understood(tree);
}

} // namespace Find
