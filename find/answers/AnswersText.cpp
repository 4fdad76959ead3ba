#include "find/answers/AnswersText.h"

#include "find/answers/Answers.h"
#include "find/terminal/Table.h"

#include <QJsonArray>

#include <algorithm>

namespace Find {

namespace {

TableRow headings(const QStringList& titles) {
    TableRow row;
    for (const QString& title : titles) {
        row.push_back({title, Tone::Heading});
    }
    return row;
}

Table tableOf(const std::vector<GameAnswer>& games) {
    Table table;
    table.leading = 2;
    table.rows.push_back(headings(
        {QStringLiteral("Game"), QStringLiteral("Found"), QStringLiteral("Folder"), QStringLiteral("Started by")}));
    for (const GameAnswer& game : games) {
        const TableCell found =
            game.found ? TableCell(QStringLiteral("yes"), Tone::Good) : TableCell(QStringLiteral("no"), Tone::Bad);
        table.rows.push_back({game.name, found, game.location.installFolder, game.location.launchCommand});
    }
    return table;
}

Table tableOf(const std::vector<RuntimeAnswer>& runtimes) {
    Table table;
    table.rows.push_back(headings({QStringLiteral("Runtime"), QStringLiteral("Where")}));
    for (const RuntimeAnswer& runtime : runtimes) {
        if (runtime.values.isEmpty()) {
            table.rows.push_back({runtime.title, {QStringLiteral("not found"), Tone::Bad}});
        }
        for (int i = 0; i < runtime.values.size(); ++i) {
            table.rows.push_back({i == 0 ? runtime.title : QString(), runtime.values.at(i)});
        }
    }
    return table;
}

QJsonValue jsonOf(const RuntimeAnswer& runtime) {
    return runtime.isList ? QJsonValue(QJsonArray::fromStringList(runtime.values))
                          : QJsonValue(runtime.values.value(0, QStringLiteral("")));
}

} // namespace

QString renderTables(const Answers& answers, const Terminal& terminal) {
    const QString runtimes = renderTable(tableOf(answers.runtimes), terminal);
    if (answers.games.empty()) {
        return runtimes;
    }
    const auto found =
        std::count_if(answers.games.begin(), answers.games.end(), [](const GameAnswer& game) { return game.found; });
    return renderTable(tableOf(answers.games), terminal) + QLatin1Char('\n') + runtimes +
           QStringLiteral("\n%1 of %2 found\n").arg(found).arg(answers.games.size());
}

QJsonObject jsonOf(const GameAnswer& game) {
    return {
        {QStringLiteral("name"), game.name},
        {QStringLiteral("found"), game.found},
        {QStringLiteral("launchCommand"), game.location.launchCommand},
        {QStringLiteral("executablePath"), game.location.executablePath},
        {QStringLiteral("executablePaths"), QJsonArray::fromStringList(game.location.executablePaths)},
        {QStringLiteral("installFolder"), game.location.installFolder},
    };
}

QJsonObject jsonOf(const Answers& answers) {
    QJsonArray games;
    for (const GameAnswer& game : answers.games) {
        games.append(jsonOf(game));
    }
    QJsonObject runtimes;
    for (const RuntimeAnswer& runtime : answers.runtimes) {
        runtimes.insert(runtime.key, jsonOf(runtime));
    }
    return {
        {QStringLiteral("games"), games},
        {QStringLiteral("runtimes"), runtimes},
    };
}

} // namespace Find
