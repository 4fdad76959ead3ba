#include "find/cli/ShellTexts.h"

#include "find/cli/CommandTree.h"

#include <kainjow/mustache.hpp>

#include <QFile>
#include <QRegularExpression>

#include <vector>

// A static library's resources are made known by a call, from outside every namespace.
static void makeResourcesKnown() {
    Q_INIT_RESOURCE(shell);
}

namespace Find {

namespace {

namespace Mustache = kainjow::mustache;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString inOneLine(const std::string& about) {
    return text(about).trimmed().replace(QLatin1Char('\n'), QLatin1Char(' '));
}

/// For troff, in which a hyphen is not a minus, a backslash begins a word of its own and so does a line's first dot.
QString forManual(QString text) {
    text.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    return text.replace(QRegularExpression(QStringLiteral("^([.'])"), QRegularExpression::MultilineOption),
                        QStringLiteral("\\&\\1"));
}

/// Within single quotes of bash and zsh.
QString quoted(QString text) {
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
}

bool isFile(const QString& value) {
    return value != QLatin1String("NAME") && value != QLatin1String("KEY");
}

std::vector<const CLI::Option*> optionsOf(const CLI::App& app, bool arePositional) {
    return app.get_options([arePositional](const CLI::Option* option) {
        return option->get_positional() == arePositional && !option->get_group().empty();
    });
}

QStringList namesOf(const CLI::Option& option) {
    QStringList names;
    for (const std::string& name : option.get_snames()) {
        names.append(QLatin1Char('-') + text(name));
    }
    for (const std::string& name : option.get_lnames()) {
        names.append(QLatin1String("--") + text(name));
    }
    return names;
}

QString valueOf(const CLI::Option& option) {
    return option.get_type_size() > 0 ? text(option.get_type_name()) : QString();
}

/// What `_arguments` is told of an option.
QString zshOption(const CLI::Option& option) {
    QString about = quoted(inOneLine(option.get_description()));
    about.replace(QLatin1Char(':'), QLatin1String("\\:"));
    const QString value = valueOf(option);
    const QString action =
        value.isEmpty()
            ? QString()
            : QStringLiteral(":%1:%2").arg(value, isFile(value) ? QStringLiteral("_files") : QStringLiteral(" "));
    QStringList specs;
    for (const QString& name : namesOf(option)) {
        specs.append(
            QStringLiteral("'%1%2[%3]%4'").arg(name, QLatin1String(value.isEmpty() ? "" : "="), about, action));
    }
    return specs.join(QLatin1Char(' '));
}

QString zshOperands(const CLI::App& app) {
    const bool isShell = app.get_name() == "completion";
    return isShell ? QStringLiteral("'*:SHELL:(%1)'").arg(shells().join(QLatin1Char(' ')))
                   : QStringLiteral("'*:file:_files'");
}

/// What the templates know of one word.
Mustache::data wordData(const QString& name, const QString& about) {
    Mustache::data word;
    word["name"] = name.toStdString();
    word["about"] = about.toStdString();
    word["quotedAbout"] = quoted(about).toStdString();
    word["powerShell"] = QString(about).replace(QLatin1Char('\''), QLatin1String("''")).toStdString();
    word["manName"] = forManual(name).toStdString();
    word["manAbout"] = forManual(about).toStdString();
    return word;
}

/// A list of which each knows whether it is the last.
Mustache::data listData(std::vector<Mustache::data> items) {
    Mustache::list list;
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]["isLast"] = i + 1 == items.size();
        list.push_back(items[i]);
    }
    return list;
}

Mustache::data wordsData(const QStringList& words) {
    std::vector<Mustache::data> items;
    for (const QString& word : words) {
        items.push_back(wordData(word, {}));
    }
    return listData(items);
}

Mustache::data optionData(const CLI::Option& option) {
    const QStringList names = namesOf(option);
    const QString about = inOneLine(option.get_description());
    Mustache::data data = wordData(names.constLast(), about);
    data["names"] = names.join(QLatin1Char(' ')).toStdString();
    data["manNames"] = forManual(names.join(QLatin1String(", "))).toStdString();
    data["zsh"] = zshOption(option).toStdString();
    if (!valueOf(option).isEmpty()) {
        data["value"] = valueOf(option).toStdString();
    }
    std::vector<Mustache::data> each;
    for (const QString& name : names) {
        each.push_back(wordData(name, about));
    }
    data["each"] = listData(each);
    return data;
}

Mustache::data levelData(const CLI::App& app) {
    Mustache::data data = wordData(text(app.get_name()), inOneLine(app.get_description()));
    QStringList usage = {QStringLiteral("[OPTIONS]")};
    QStringList words;
    std::vector<Mustache::data> options;
    std::vector<Mustache::data> operands;
    for (const CLI::Option* const option : optionsOf(app, false)) {
        options.push_back(optionData(*option));
        words += namesOf(*option);
    }
    for (const CLI::Option* const operand : optionsOf(app, true)) {
        const QString name = text(operand->get_name(true));
        usage.append(operand->get_required() ? name : QStringLiteral("[%1]").arg(name));
        operands.push_back(wordData(name, inOneLine(operand->get_description())));
    }
    const QStringList choices = app.get_name() == "completion" ? shells() : QStringList();
    data["options"] = listData(options);
    data["operands"] = listData(operands);
    data["choices"] = wordsData(choices);
    data["words"] = wordsData(words + choices);
    data["zshOperands"] = zshOperands(app).toStdString();
    data["manUsage"] = forManual(usage.join(QLatin1Char(' '))).toStdString();
    data["manFooter"] = forManual(text(app.get_footer())
                                      .replace(QLatin1String("\n\n"), QLatin1String("\n.PP\n"))
                                      .replace(QLatin1String("\n  "), QLatin1String("\n.br\n")))
                            .replace(QLatin1String("\\&.PP"), QLatin1String(".PP"))
                            .replace(QLatin1String("\\&.br"), QLatin1String(".br"))
                            .toStdString();
    return data;
}

/// The options that have a value for which no file can stand.
QStringList optionsWithOtherValues(const CLI::App& app) {
    QStringList names;
    for (const CLI::Option* const option : optionsOf(app, false)) {
        if (!valueOf(*option).isEmpty() && !isFile(valueOf(*option))) {
            names += namesOf(*option);
        }
    }
    return names;
}

QString render(const QString& form) {
    makeResourcesKnown();
    QFile file(QStringLiteral(":/shell/") + form);
    file.open(QIODevice::ReadOnly);
    const CommandTree tree;
    Mustache::data data = levelData(tree.app());
    std::vector<Mustache::data> commands;
    for (const CLI::App* const command :
         tree.app().get_subcommands([](const CLI::App* sub) { return !sub->get_group().empty(); })) {
        commands.push_back(levelData(*command));
    }
    data["commands"] = listData(commands);
    data["values"] = wordsData(optionsWithOtherValues(tree.app()));
    Mustache::mustache whole(QString::fromUtf8(file.readAll()).toStdString());
    return text(whole.render(data));
}

} // namespace

QStringList shells() {
    return {QStringLiteral("bash"), QStringLiteral("zsh"), QStringLiteral("powershell")};
}

QString completionFor(const QString& shell) {
    return shells().contains(shell) ? render(shell) : QString();
}

QString manualPage() {
    return render(QStringLiteral("manual"));
}

} // namespace Find
