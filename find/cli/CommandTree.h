#pragma once

#include "find/cli/CommandForms.h"

#include <CLI/CLI.hpp>

#include <vector>

namespace Find {

/// The commands and their options for CLI11, which reads the command line by them and writes the help. The program
/// without a command takes what its first command takes, and, hidden, the options of all others: they may stand before
/// the command.
class CommandTree {
public:
    CommandTree();

    CLI::App& app() { return m_app; }

    const CLI::App& app() const { return m_app; }

    /// The command that a command line that was parsed came to.
    const CommandForm& form() const;

    /// What it gave. `fault` says what is wrong with it; empty when nothing is.
    Options options(QString& fault) const;

private:
    struct Level {
        CLI::App* app;
        const CommandForm* form;
    };

    void declare(const Level& level);
    QString surplusOperand() const;
    const Level& chosen() const;

    CLI::App m_app;
    std::vector<Level> m_levels; ///< the program itself first
};

} // namespace Find
