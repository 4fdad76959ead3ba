#include "find/catalogue/CatalogueWriter.h"

#include "find/catalogue/FinderTypes.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Find {

namespace {

bool saysNothing(const FinderField& field, const FinderEntry& finder) {
    const auto* const number = std::get_if<int FinderEntry::*>(&field.target);
    return number != nullptr && finder.**number == 0;
}

QString textOf(const QString& text) {
    const QJsonArray list{text.isEmpty() ? QStringLiteral("") : text};
    const QString json = QString::fromUtf8(QJsonDocument(list).toJson(QJsonDocument::Compact));
    return json.mid(1, json.size() - 2);
}

QString textOf(int number) {
    return QString::number(number);
}

QString textOf(const FinderEntry& finder) {
    return catalogueText(finder);
}

template <class Items>
QString textOf(const Items& items) {
    QStringList texts;
    for (const auto& item : items) {
        texts.append(textOf(item));
    }
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

} // namespace

QString catalogueText(const FinderEntry& finder) {
    QString text = QLatin1String("{\"type\": ") + textOf(QString(QLatin1String(finder.type->name)));
    for (const FinderField& field : finder.type->fields) {
        if (!saysNothing(field, finder)) {
            const QString value = std::visit([&finder](auto target) { return textOf(finder.*target); }, field.target);
            text += QLatin1String(", \"") + QLatin1String(field.name) + QLatin1String("\": ") + value;
        }
    }
    return text + QLatin1Char('}');
}

QString catalogueText(const Game& game) {
    return QLatin1String("{\"name\": ") + textOf(game.name) + QLatin1String(", \"finders\": ") + textOf(game.finders) +
           QLatin1Char('}');
}

QJsonObject jsonOf(const FinderEntry& finder) {
    return QJsonDocument::fromJson(catalogueText(finder).toUtf8()).object();
}

} // namespace Find
