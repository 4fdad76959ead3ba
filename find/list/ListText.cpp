#include "find/list/ListText.h"

#include "find/catalogue/CatalogueWriter.h"
#include "find/terminal/ToneText.h"

#include <QJsonObject>

namespace Find {

QString renderList(const std::vector<ListedGame>& games, const Terminal& terminal) {
    const QString indent = QStringLiteral("    ");
    QString text;
    for (const ListedGame& game : games) {
        const QString place = game.folder.isEmpty() ? QStringLiteral("no folder is known") : game.folder;
        text += renderLine(game.name, Tone::Heading, terminal);
        text += renderLine(indent + game.list + QLatin1String(": ") + place, Tone::Plain, terminal);
        text += game.finder ? indent + catalogueText(Game{game.name, {*game.finder}}) + QLatin1Char('\n')
                            : renderLine(indent + QLatin1String("no finder was found for it"), Tone::Bad, terminal);
    }
    return text;
}

QJsonArray jsonOf(const std::vector<ListedGame>& games) {
    QJsonArray list;
    for (const ListedGame& game : games) {
        list.append(QJsonObject{
            {QStringLiteral("name"), game.name},
            {QStringLiteral("list"), game.list},
            {QStringLiteral("folder"), game.folder.isEmpty() ? QStringLiteral("") : game.folder},
            {QStringLiteral("finders"), game.finder ? QJsonArray{jsonOf(*game.finder)} : QJsonArray()},
        });
    }
    return list;
}

} // namespace Find
