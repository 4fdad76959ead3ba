#include "find/cli/LookUpCommand.h"

#include "find/cli/CommandLine.h"
#include "find/cli/JsonReply.h"
#include "find/list/InstalledGames.h"
#include "find/list/ListText.h"
#include "find/list/LookUp.h"
#include "find/terminal/Console.h"
#include "find/terminal/DidYouMean.h"
#include "find/terminal/ToneText.h"

#include <QJsonObject>

namespace Find {

namespace {

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
