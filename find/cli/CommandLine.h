#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Find {

/// What the program does.
enum class Command {
    FindGames,
    List,       ///< tells all that is installed
    Runtimes,   ///< asks for the VR runtimes only
    Locate,     ///< remembers where the user has a game
    Forget,     ///< forgets it
    Record,     ///< makes a recording of the PC
    Report,     ///< makes a page of the answers that carries a recording of the PC
    Unpack,     ///< makes a folder of a recording that is one file
    Explain,    ///< tells why a game was found or not
    Completion, ///< prints what completes the command line in a shell
    Manual,     ///< prints the manual page
};

/// What the user asked for.
struct Options {
    Command command = Command::FindGames;
    QString key;       ///< the game's key in the user's settings, with Locate and Forget
    QString folder;    ///< where the game is, with Locate; where the recording goes, with Record, Report and Unpack
    QString file;      ///< the recording, with Unpack
    QString name;      ///< the game's name, with Explain
    QString shell;     ///< with Completion
    QString catalogue; ///< means something with all that ask for games
    QString plugin;    ///< the plug-in's file
    bool isOwnPlugin = true;   ///< the one beside the program, as none was given
    std::optional<QString> pc; ///< the recorded PC's file or folder, as given
    QStringList games;         ///< names of the games to ask for; empty for all
    bool json = false;
    bool keepNames = false; ///< the user's and the machine's name stay in the recording, with Record and Report
    bool all = false;       ///< leave nothing out, with Explain
};

/// What stands for standard input in the place of a file.
inline QString standardInput() {
    return QStringLiteral("-");
}

/// What a user calls the file that was given.
QString shownName(const QString& file);

/// The arguments, understood: either something to do or a text that says why not.
struct CommandLine {
    enum class Action { Run, PrintText, Refuse };

    Action action = Action::Refuse;
    Options options; ///< means something with Run only
    QString text;    ///< the help or the version with PrintText, the fault with Refuse
    QString helper;  ///< the command line that tells more, with Refuse
};

/// Needs the application object. The first argument is the program's own name.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace Find
