#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/// What the user asked for.
struct Options {
    QString catalogue;
    QString plugin;            ///< the plug-in's file; the one beside the program when none was given
    std::optional<QString> pc; ///< the recorded PC's folder, as given
    QStringList games;         ///< names of the games to ask for; empty for all
    bool json = false;
};

/// The arguments, understood: either something to do or a text that says why not.
struct CommandLine {
    enum class Action { Run, PrintText, Refuse };

    Action action = Action::Refuse;
    Options options; ///< means something with Run only
    QString text;    ///< the help or the version with PrintText, the fault with Refuse
};

/// Needs the application object. The first argument is the program's own name.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace Host
