#pragma once

#include "find/cli/CommandLine.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace Find {

/// What a command takes without a name, in its place.
struct Operand {
    const char* name;
    const char* about;
    QString Options::*target;
    bool isNeeded = false;
};

/// What a command takes under a name, wherever it stands. Whether it has a value follows from the target.
struct Switch {
    using Target =
        std::variant<bool Options::*, QString Options::*, QStringList Options::*, std::optional<QString> Options::*>;

    const char* name;  ///< with its two hyphens
    const char* value; ///< what its value is called; null when it has none
    const char* about;
    Target target;
};

/// One of the program's commands with all that its user can write and is told of it: whoever adds a command adds a row
/// here. The command line, the help, the completions of the shells and the manual are made of these.
struct CommandForm {
    Command command;
    const char* name;
    const char* about;
    std::vector<Operand> operands; ///< those that are needed stand first
    std::vector<const Switch*> switches;
    const char* example;
};

/// All commands. The first is the one that needs no name.
const std::vector<CommandForm>& commandForms();

QStringList commandNames();

/// All switches, those of every command last.
const std::vector<const Switch*>& allSwitches();

bool hasSwitch(const CommandForm& form, const Switch& aSwitch);

} // namespace Find
