#include "host/CommandLine.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace Host {

namespace {

QString text(const char* utf8) {
    return QString::fromUtf8(utf8);
}

struct Declared {
    const QCommandLineOption plugin{text("plugin"), text("Load this plug-in instead of the one beside the program."),
                                    text("FILE")};
    const QCommandLineOption pc{text("pc"), text("Answer from this recorded PC, and name what is wrong with it."),
                                text("FOLDER")};
    const QCommandLineOption game{text("game"), text("Ask for this game only. Can be given several times."),
                                  text("NAME")};
    const QCommandLineOption json{text("json"), text("Print the answers as JSON.")};
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
        text("The file that lists the games (docs/catalogue.md);\nthe one beside the program unless given."));
    parser.addOptions({declared.plugin, declared.pc, declared.game, declared.json, declared.help, declared.version});
}

/// The first fault in arguments whose options are all known; empty when there is none.
QString findFault(const QCommandLineParser& parser, const Declared& declared) {
    for (const QCommandLineOption* option : {&declared.plugin, &declared.pc, &declared.game}) {
        if (parser.isSet(*option) && parser.values(*option).contains(QString())) {
            return text("--%1: the value is empty").arg(option->names().constFirst());
        }
    }
    const QStringList catalogues = parser.positionalArguments();
    if (catalogues.contains(QString())) {
        return text("the name of the catalogue is empty");
    }
    if (catalogues.size() > 1) {
        return text("surplus argument \"%1\"").arg(catalogues.at(1));
    }
    return QString();
}

Options readOptions(const QCommandLineParser& parser, const Declared& declared) {
    Options options;
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QStringList catalogues = parser.positionalArguments();
    options.catalogue = catalogues.isEmpty() ? programFolder.filePath(text("catalogue.json")) : catalogues.constFirst();
    // Without a suffix: the library loader knows what libraries end in on this system.
    options.plugin =
        parser.isSet(declared.plugin) ? parser.value(declared.plugin) : programFolder.filePath(text("Luruludri"));
    if (parser.isSet(declared.pc)) {
        options.pc = parser.value(declared.pc);
    }
    options.games = parser.values(declared.game);
    options.json = parser.isSet(declared.json);
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
    const QString fault = findFault(parser, declared);
    if (!fault.isEmpty()) {
        return {CommandLine::Action::Refuse, {}, fault};
    }
    return {CommandLine::Action::Run, readOptions(parser, declared), {}};
}

} // namespace Host
