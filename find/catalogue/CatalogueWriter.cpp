#include "find/catalogue/CatalogueWriter.h"

#include "find/catalogue/FinderTypes.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Find {

namespace {

QJsonValue valueOf(const QString& text) {
    return text.isEmpty() ? QStringLiteral("") : text;
}

QJsonValue valueOf(const QStringList& texts) {
    return QJsonArray::fromStringList(texts);
}

QJsonValue valueOf(int number) {
    return number;
}

QJsonValue valueOf(const std::vector<FinderEntry>& finders) {
    QJsonArray list;
    for (const FinderEntry& finder : finders) {
        list.append(jsonOf(finder));
    }
    return list;
}

QJsonValue valueOf(const FinderField& field, const FinderEntry& finder) {
    return std::visit([&finder](auto target) { return valueOf(finder.*target); }, field.target);
}

bool saysNothing(const FinderField& field, const FinderEntry& finder) {
    const auto* const number = std::get_if<int FinderEntry::*>(&field.target);
    return number != nullptr && finder.**number == 0;
}

QString textOf(const QJsonValue& value) {
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

QString textOf(const QString& text) {
    return textOf(valueOf(text));
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

QJsonObject jsonOf(const FinderEntry& finder) {
    QJsonObject object = {{QStringLiteral("type"), QLatin1String(finder.type->name)}};
    for (const FinderField& field : finder.type->fields) {
        if (!saysNothing(field, finder)) {
            object.insert(QLatin1String(field.name), valueOf(field, finder));
        }
    }
    return object;
}

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

} // namespace Find
