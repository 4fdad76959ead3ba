#include "find/cli/ListCommand.h"

#include "find/cli/CommandLine.h"
#include "find/cli/JsonReply.h"
#include "find/list/InstalledGames.h"
#include "find/list/ListText.h"
#include "find/terminal/Console.h"

#include <QJsonObject>

#include <algorithm>

namespace Find {

namespace {

QString lastLine(const std::vector<ListedGame>& games) {
    const auto found =
        std::count_if(games.begin(), games.end(), [](const ListedGame& game) { return game.finder.has_value(); });
    const QString line = QStringLiteral("%1 installed, %2 of them with a line for a catalogue\n");
    return (games.empty() ? QString() : QStringLiteral("\n")) + line.arg(games.size()).arg(found);
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

} // namespace Find
