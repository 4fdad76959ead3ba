#include "find/cli/CommandTree.h"

#include <QCoreApplication>
#include <QDir>

namespace Find {

namespace {

constexpr std::size_t columnOfTexts = 22;

/// CLI11's own, with one empty line between any two parts.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter() {
        label("Positionals", "Arguments");
        label("SUBCOMMAND", "COMMAND");
        column_width(columnOfTexts);
    }

    std::string make_description(const CLI::App* app) const override {
        return CLI::Formatter::make_description(app) + "\n";
    }

    /// Of the program itself there are two: a catalogue stands behind a command.
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return app->get_parent() != nullptr
                   ? CLI::Formatter::make_usage(app, name)
                   : "\nUsage: " + name + " [OPTIONS] [CATALOGUE]\n       " + name + " [OPTIONS] COMMAND ...\n";
    }

    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const override {
        return CLI::detail::find_and_replace(CLI::Formatter::make_help(app, name, mode), "\n\n\n", "\n\n");
    }
};

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

bool hasValue(const Switch& aSwitch) {
    return !std::holds_alternative<bool Options::*>(aSwitch.target);
}

CLI::Option& declare(CLI::App& app, const Switch& aSwitch) {
    if (!hasValue(aSwitch)) {
        return *app.add_flag(aSwitch.name, aSwitch.about);
    }
    CLI::Option* const option = app.add_option(aSwitch.name, aSwitch.about)->type_name(aSwitch.value);
    const bool isList = std::holds_alternative<QStringList Options::*>(aSwitch.target);
    return *option->multi_option_policy(isList ? CLI::MultiOptionPolicy::TakeAll : CLI::MultiOptionPolicy::TakeLast);
}

/// What was given for an option; empty when nothing was, or there is no such option.
QStringList valuesOf(const CLI::App& app, const char* name) {
    const CLI::Option* const option = app.get_option_no_throw(name);
    QStringList values;
    if (option != nullptr) {
        for (const std::string& value : option->results()) {
            values.append(text(value));
        }
    }
    return values;
}

void assign(bool& flag, const QStringList& /*values*/) {
    flag = true;
}

void assign(QString& value, const QStringList& values) {
    value = values.constLast();
}

void assign(std::optional<QString>& value, const QStringList& values) {
    value = values.constLast();
}

void assign(QStringList& list, const QStringList& values) {
    list += values;
}

/// What is wrong with the values of an option; empty when nothing is.
QString faultIn(const QStringList& values, const char* name, bool mayHaveValues) {
    for (const QString& value : values) {
        if (mayHaveValues && value.trimmed().isEmpty()) {
            return QStringLiteral("%1 is empty").arg(QLatin1String(name));
        }
        if (!mayHaveValues && value != QLatin1String("true")) { // which CLI11 gives for an option alone
            return QStringLiteral("%1 takes no value").arg(QLatin1String(name));
        }
    }
    return {};
}

Options usualOptions() {
    const QDir programFolder(QCoreApplication::applicationDirPath());
    Options options;
    options.catalogue = programFolder.filePath(QStringLiteral("catalogue.json"));
    // Without a suffix: the library loader knows what libraries end in on this system.
    options.plugin = programFolder.filePath(QStringLiteral("Luruludri"));
    return options;
}

} // namespace

CommandTree::CommandTree()
    : m_app("Loads the plug-in Luruludri as a host does and asks it where games and VR\nruntimes are.",
            "luruludri-find") {
    m_app.allow_windows_style_options(false); // "/home" is a folder
    m_app.formatter(std::make_shared<HelpFormatter>());
    m_app.set_help_flag("-h,--help", "Print this help.");
    const std::string version = "luruludri-find " + QCoreApplication::applicationVersion().toStdString();
    m_app.set_version_flag("-V,--version", version, "Print the version.");
    m_app.require_subcommand(0, 1);
    m_app.footer("luruludri-find COMMAND --help tells more about a command.\n\n"
                 "Exit status: 0 when all games were found, 1 when some were not, 2 when the\nprogram was used "
                 "wrongly or something that it reads is missing or broken.");
    const std::vector<CommandForm>& forms = commandForms();
    m_levels.push_back({&m_app, &forms.front()});
    for (const CommandForm& form : forms) {
        CLI::App* const app = m_app.add_subcommand(form.name, form.about)->group("Commands");
        app->footer(std::string("Example:\n  ") + form.example);
        app->set_version_flag("-V,--version", version)->group(""); // which hides it
        m_levels.push_back({app, &form});
    }
    for (const Level& level : m_levels) {
        declare(level);
    }
}

void CommandTree::declare(const Level& level) {
    for (const Operand& operand : level.form->operands) {
        level.app->add_option(operand.name, operand.about)->required(operand.isNeeded)->option_text(" ");
    }
    for (const Switch* const one : level.form->switches) {
        Find::declare(*level.app, *one);
    }
    for (const Switch* const other : allSwitches()) {
        if (level.app == &m_app && !hasSwitch(*level.form, *other)) {
            Find::declare(m_app, *other).group(""); // which hides it
        }
    }
}

const CommandTree::Level& CommandTree::chosen() const {
    for (const Level& level : m_levels) {
        if (level.app != &m_app && level.app->parsed()) {
            return level;
        }
    }
    return m_levels.front();
}

const CommandForm& CommandTree::form() const {
    return *chosen().form;
}

/// The fault of words that no command takes; empty when there are none.
QString CommandTree::surplusOperand() const {
    QStringList words = valuesOf(m_app, m_levels.front().form->operands.front().name);
    if (chosen().app == &m_app) {
        return {};
    }
    return words.isEmpty() ? QString() : QStringLiteral("unexpected argument \"%1\"").arg(words.constFirst());
}

Options CommandTree::options(QString& fault) const {
    const Level& level = chosen();
    Options options = usualOptions();
    options.command = level.form->command;
    fault = surplusOperand();
    for (const Operand& operand : level.form->operands) {
        const QStringList values = valuesOf(*level.app, operand.name);
        fault = fault.isEmpty() ? faultIn(values, operand.name, true) : fault;
        if (!values.isEmpty()) {
            assign(options.*operand.target, values);
        }
    }
    for (const Switch* const one : allSwitches()) {
        QStringList values = valuesOf(m_app, one->name);
        values += level.app != &m_app ? valuesOf(*level.app, one->name) : QStringList();
        if (values.isEmpty()) {
            continue;
        }
        fault = fault.isEmpty() ? faultIn(values, one->name, hasValue(*one)) : fault;
        if (fault.isEmpty() && !hasSwitch(*level.form, *one)) {
            fault =
                QStringLiteral("%1 does not take %2").arg(QLatin1String(level.form->name), QLatin1String(one->name));
        }
        std::visit([&](auto target) { assign(options.*target, values); }, one->target);
    }
    options.isOwnPlugin = options.plugin == usualOptions().plugin;
    return options;
}

} // namespace Find
