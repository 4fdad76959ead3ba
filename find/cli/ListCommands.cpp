#include "find/cli/Commands.h"

#include "find/cli/CommandLine.h"
#include "find/cli/JsonReply.h"
#include "find/explain/Words.h"
#include "find/list/InstalledGames.h"
#include "find/list/ListText.h"
#include "find/terminal/Console.h"
#include "find/terminal/DidYouMean.h"
#include "find/terminal/ToneText.h"

#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

QString lastLine(const std::vector<ListedGame>& games) {
    const auto found =
        std::count_if(games.begin(), games.end(), [](const ListedGame& game) { return game.finder.has_value(); });
    const QString line = QStringLiteral("%1 installed, %2 of them with a line for a catalogue\n");
    return (games.empty() ? QString() : QStringLiteral("\n")) + line.arg(games.size()).arg(found);
}

/// Of what is installed, what bears this name, letter case ignored, or else what is called alike.
std::vector<ListedGame> installedLike(const std::vector<ListedGame>& installed, const QString& name) {
    std::vector<ListedGame> games;
    std::copy_if(installed.begin(), installed.end(), std::back_inserter(games), [&name](const ListedGame& game) {
        return game.name.compare(name.trimmed(), Qt::CaseInsensitive) == 0;
    });
    if (!games.empty()) {
        return games;
    }
    QStringList names;
    for (const ListedGame& game : installed) {
        names.append(game.name);
    }
    const QStringList near = wordsNear(name, names);
    const QStringList words = searchWords({name, {}});
    std::copy_if(installed.begin(), installed.end(), std::back_inserter(games),
                 [&](const ListedGame& game) { return near.contains(game.name) || mentions(game.name, words); });
    return games;
}

QString render(const Options& options, const QStringList& known, const std::vector<ListedGame>& games) {
    const Terminal terminal = Console::terminal(Stream::Output);
    const QString outcome =
        games.empty() ? QStringLiteral("nothing installed has a similar name") : QStringLiteral("installed as");
    return renderLine(options.name + QStringLiteral(": not in the catalogue") + didYouMean(options.name, known),
                      Tone::Bad, terminal) +
           renderLine(outcome, Tone::Plain, terminal) + renderList(games, terminal);
}

QJsonObject jsonReply(const Options& options, const QStringList& known, const std::vector<ListedGame>& games) {
    return {{QStringLiteral("name"), options.name},
            {QStringLiteral("alike"), QJsonArray::fromStringList(wordsNear(options.name, known))},
            {QStringLiteral("installed"), jsonOf(games)}};
}

} // namespace

ExitStatus listPc(const Options& options) {
    QString fault;
    const std::vector<ListedGame> games = installedGames(options.plugin, fault);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const bool isPrinted = options.json
                               ? printReply({{QStringLiteral("installed"), jsonOf(games)}})
                               : Console::print(renderList(games, Console::terminal(Stream::Output)) + lastLine(games));
    return afterPrinting(isPrinted, allFound);
}

ExitStatus lookUp(const Options& options, const QStringList& known) {
    QString fault;
    const std::vector<ListedGame> games = installedLike(installedGames(options.plugin, fault), options.name);
    if (!fault.isEmpty()) {
        return fail(fault);
    }
    const bool isPrinted =
        options.json ? printReply(jsonReply(options, known, games)) : Console::print(render(options, known, games));
    return afterPrinting(isPrinted, games.empty() ? someNotFound : allFound);
}

} // namespace Find
