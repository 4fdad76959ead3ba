#include "find/catalogue/CatalogueReader.h"

#include "find/catalogue/FinderTypes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Find {

namespace {

QString typeField() {
    return QStringLiteral("type");
}

QString placeOf(const QString& place, const QString& field) {
    return place.isEmpty() ? field : place + QLatin1Char('.') + field;
}

QString placeOf(const QString& place, int index) {
    return QStringLiteral("%1[%2]").arg(place).arg(index);
}

QString typeName(int type) {
    switch (type) {
    case QJsonValue::Bool:
        return QStringLiteral("a truth value");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

QString knownTypes() {
    QStringList names;
    for (const FinderType& type : finderTypes()) {
        names.append(QLatin1String(type.name));
    }
    return names.join(QLatin1String(", "));
}

bool hasControlCharacter(const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar character) { return character.category() == QChar::Other_Control; });
}

} // namespace

bool CatalogueReader::read(const QJsonDocument& document, Catalogue& catalogue) {
    const QString field = QStringLiteral("games");
    const QJsonValue root = document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    if (!expectType(root, QString(), QJsonValue::Object) || !expectFields(root.toObject(), QString(), {field}) ||
        !expectType(root[field], field, QJsonValue::Array)) {
        return false;
    }
    const QJsonArray games = root[field].toArray();
    for (int i = 0; i < games.size(); ++i) {
        const QString place = placeOf(field, i);
        Game game;
        if (!readGame(games[i], place, game) || !expectNewName(catalogue, place, game.name)) {
            return false;
        }
        catalogue.push_back(std::move(game));
    }
    return true;
}

bool CatalogueReader::readGame(const QJsonValue& value, const QString& place, Game& game) {
    const QString name = QStringLiteral("name");
    const QString finders = QStringLiteral("finders");
    return expectType(value, place, QJsonValue::Object) && expectFields(value.toObject(), place, {name, finders}) &&
           readValue(value[name], placeOf(place, name), game.name) &&
           readValue(value[finders], placeOf(place, finders), game.finders);
}

bool CatalogueReader::readFinder(const QJsonValue& value, const QString& place, FinderEntry& entry) {
    const QJsonObject object = value.toObject();
    if (!expectType(value, place, QJsonValue::Object) || !readType(object, place, entry)) {
        return false;
    }
    QStringList required = {typeField()};
    QStringList optional;
    for (const FinderField& field : entry.type->fields) {
        const bool isNumber = std::holds_alternative<int FinderEntry::*>(field.target);
        (isNumber ? optional : required).append(QLatin1String(field.name));
    }
    return expectFields(object, place, required, optional) &&
           std::all_of(entry.type->fields.begin(), entry.type->fields.end(),
                       [&](const FinderField& field) { return readField(object, place, field, entry); });
}

bool CatalogueReader::readType(const QJsonObject& object, const QString& place, FinderEntry& entry) {
    if (!object.contains(typeField())) {
        return fail(place, QStringLiteral("\"type\" is missing"));
    }
    QString name;
    if (!readValue(object[typeField()], placeOf(place, typeField()), name)) {
        return false;
    }
    entry.type = findFinderType(name);
    return entry.type != nullptr ||
           fail(place, QStringLiteral("unknown type \"%1\" (known: %2)").arg(name, knownTypes()));
}

bool CatalogueReader::readField(const QJsonObject& object, const QString& place, const FinderField& field,
                                FinderEntry& entry) {
    const QString name = QLatin1String(field.name);
    if (!object.contains(name)) {
        return true;
    }
    return std::visit([&](auto target) { return readValue(object[name], placeOf(place, name), entry.*target); },
                      field.target);
}

bool CatalogueReader::readValue(const QJsonValue& value, const QString& place, std::vector<FinderEntry>& finders) {
    if (!expectType(value, place, QJsonValue::Array)) {
        return false;
    }
    const QJsonArray entries = value.toArray();
    if (static_cast<std::size_t>(entries.size()) > mostFinders) {
        return fail(place, QStringLiteral("%1 finders are more than a game can have (%2; put some into a \"multi\")")
                               .arg(entries.size())
                               .arg(mostFinders));
    }
    finders.resize(static_cast<std::size_t>(entries.size()));
    for (int i = 0; i < entries.size(); ++i) {
        if (!readFinder(entries[i], placeOf(place, i), finders[static_cast<std::size_t>(i)])) {
            return false;
        }
    }
    return true;
}

bool CatalogueReader::readValue(const QJsonValue& value, const QString& place, QStringList& texts) {
    if (!expectType(value, place, QJsonValue::Array)) {
        return false;
    }
    const QJsonArray elements = value.toArray();
    for (int i = 0; i < elements.size(); ++i) {
        QString text;
        if (!readValue(elements[i], placeOf(place, i), text)) {
            return false;
        }
        texts.append(text);
    }
    return true;
}

bool CatalogueReader::readValue(const QJsonValue& value, const QString& place, QString& text) {
    if (!expectType(value, place, QJsonValue::String)) {
        return false;
    }
    text = value.toString();
    if (hasControlCharacter(text)) {
        // "D:\bin\new" is good JSON, but no folder.
        return fail(place, QStringLiteral("control character in a text (a backslash is written \\\\)"));
    }
    return true;
}

bool CatalogueReader::readValue(const QJsonValue& value, const QString& place, int& number) {
    if (!expectType(value, place, QJsonValue::Double)) {
        return false;
    }
    const double wanted = value.toDouble();
    if (std::trunc(wanted) != wanted || wanted < std::numeric_limits<int>::min() ||
        wanted > std::numeric_limits<int>::max()) {
        return fail(place, QStringLiteral("a whole number of 32 bits is needed"));
    }
    number = static_cast<int>(wanted);
    return true;
}

bool CatalogueReader::expectType(const QJsonValue& value, const QString& place, int type) {
    return value.type() == type ||
           fail(place, QStringLiteral("%1 is needed, not %2").arg(typeName(type), typeName(value.type())));
}

bool CatalogueReader::expectFields(const QJsonObject& object, const QString& place, const QStringList& required,
                                   const QStringList& optional) {
    const QStringList known = required + optional;
    const QStringList present = object.keys();
    for (const QString& name : present) {
        if (!known.contains(name)) {
            return fail(place,
                        QStringLiteral("unknown field \"%1\" (known: %2)").arg(name, known.join(QLatin1String(", "))));
        }
    }
    for (const QString& name : required) {
        if (!present.contains(name)) {
            return fail(place, QStringLiteral("\"%1\" is missing").arg(name));
        }
    }
    return true;
}

bool CatalogueReader::expectNewName(const Catalogue& catalogue, const QString& place, const QString& name) {
    if (name.isEmpty()) {
        return fail(place, QStringLiteral("\"name\" is empty"));
    }
    const bool isTaken = std::any_of(catalogue.begin(), catalogue.end(), [&](const Game& game) {
        return game.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return !isTaken || fail(place, QStringLiteral("there is a game \"%1\" already").arg(name));
}

bool CatalogueReader::fail(const QString& place, const QString& message) {
    m_fault = place.isEmpty() ? message : place + QLatin1String(": ") + message;
    return false;
}

} // namespace Find
