#include "host/Report.h"

#include "host/Answers.h"
#include "host/Table.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Host {

namespace {

constexpr int jsonVersion = 1;

std::vector<QStringList> gameRows(const std::vector<GameAnswer>& games) {
    std::vector<QStringList> rows = {
        {QStringLiteral("Game"), QStringLiteral("Found"), QStringLiteral("Folder"), QStringLiteral("Started by")}};
    for (const GameAnswer& game : games) {
        rows.push_back({game.name, game.found ? QStringLiteral("yes") : QStringLiteral("no"),
                        game.location.installFolder, game.location.launchCommand});
    }
    return rows;
}

std::vector<QStringList> runtimeRows(const std::vector<RuntimeAnswer>& runtimes) {
    std::vector<QStringList> rows = {{QStringLiteral("Runtime"), QStringLiteral("Where")}};
    for (const RuntimeAnswer& runtime : runtimes) {
        const QStringList values = runtime.values.isEmpty() ? QStringList{QStringLiteral("not found")} : runtime.values;
        for (int i = 0; i < values.size(); ++i) {
            rows.push_back({i == 0 ? runtime.title : QString(), values.at(i)});
        }
    }
    return rows;
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

QJsonValue jsonOf(const RuntimeAnswer& runtime) {
    return runtime.isList ? QJsonValue(QJsonArray::fromStringList(runtime.values))
                          : QJsonValue(runtime.values.value(0, QStringLiteral("")));
}

} // namespace

QString renderTables(const Answers& answers) {
    const QString runtimes = renderTable(runtimeRows(answers.runtimes));
    return answers.games.empty() ? runtimes : renderTable(gameRows(answers.games)) + QLatin1Char('\n') + runtimes;
}

QString renderJson(const Answers& answers) {
    QJsonArray games;
    for (const GameAnswer& game : answers.games) {
        games.append(jsonOf(game));
    }
    QJsonObject runtimes;
    for (const RuntimeAnswer& runtime : answers.runtimes) {
        runtimes.insert(runtime.key, jsonOf(runtime));
    }
    const QJsonObject root = {
        {QStringLiteral("version"), jsonVersion},
        {QStringLiteral("games"), games},
        {QStringLiteral("runtimes"), runtimes},
    };
    return QString::fromUtf8(QJsonDocument(root).toJson());
}

} // namespace Host
