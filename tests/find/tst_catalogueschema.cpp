// What editors are told by docs/catalogue.schema.json is what the reader takes.

#include "find/catalogue/Catalogue.h"
#include "find/catalogue/FinderTypes.h"

#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using namespace Find;

namespace {

QJsonObject schema() {
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(docText("catalogue.schema.json").toUtf8(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError);
    return root;
}

/// What the schema says of a part that it has a name for.
QJsonValue defined(const QString& name) {
    const QJsonObject definitions = schema()["definitions"].toObject();
    EXPECT_TRUE(definitions.contains(name)) << name.toStdString();
    return definitions[name];
}

/// The part of the schema that this one leads to, or itself.
QJsonObject resolved(const QJsonValue& part) {
    const QString reference = part["$ref"].toString();
    return reference.isEmpty() ? part.toObject() : defined(reference.section('/', -1)).toObject();
}

QStringList texts(const QJsonValue& list) {
    QStringList found;
    for (const QJsonValue text : list.toArray()) {
        found.append(text.toString());
    }
    return found;
}

/// The names of the definitions that a list of finders leads to.
QStringList finderDefinitions() {
    QStringList names;
    for (const QJsonValue one : defined("finders")["items"]["oneOf"].toArray()) {
        names.append(one["$ref"].toString().section('/', -1));
    }
    return names;
}

/// A value of the kind that the schema asks for.
QJsonValue valueFor(const QJsonObject& part) {
    const QString type = part["type"].toString();
    if (part.contains("const")) {
        return part["const"];
    }
    return type == "string" ? QJsonValue("x") : type == "integer" ? QJsonValue(1) : QJsonValue(QJsonArray());
}

/// A finder with all that the schema knows of it.
QJsonObject fullFinder(const QString& definition) {
    const QJsonObject properties = defined(definition)["properties"].toObject();
    QJsonObject finder;
    for (const QString& name : properties.keys()) {
        finder.insert(name, valueFor(resolved(properties[name])));
    }
    return finder;
}

bool isRead(const QJsonObject& document) {
    CatalogueFaults faults;
    return parseCatalogue(QJsonDocument(document).toJson(), faults).has_value();
}

QJsonObject withGame(const QJsonObject& game) {
    return {{"games", QJsonArray{game}}};
}

QJsonObject withFinder(const QJsonObject& finder) {
    return withGame({{"name", "x"}, {"finders", QJsonArray{finder}}});
}

TEST(CatalogueSchema, HasTheFindersThatTheReaderKnows) {
    QStringList types;
    for (const FinderType& type : finderTypes()) {
        types.append(type.name);
        EXPECT_EQ(defined(type.name)["properties"]["type"]["const"].toString(), type.name);
    }
    EXPECT_EQ(finderDefinitions(), types);
}

TEST(CatalogueSchema, HasTheFieldsThatTheReaderKnowsAndAsksForThoseThatItNeeds) {
    for (const FinderType& type : finderTypes()) {
        QStringList fields = {"type"};
        QStringList needed = {"type"};
        for (const FinderField& field : type.fields) {
            fields.append(field.name);
            if (!std::holds_alternative<int FinderEntry::*>(field.target)) {
                needed.append(field.name);
            }
        }
        const QJsonObject definition = defined(type.name).toObject();
        fields.sort();
        EXPECT_EQ(definition["properties"].toObject().keys(), fields);
        EXPECT_EQ(texts(definition["required"]), needed);
        EXPECT_EQ(definition["additionalProperties"], QJsonValue(false)) << type.name;
    }
}

TEST(CatalogueSchema, WhatItAllowsIsRead) {
    for (const QString& definition : finderDefinitions()) {
        const QJsonObject finder = fullFinder(definition);
        EXPECT_TRUE(isRead(withFinder(finder))) << definition.toStdString();
        for (const QString& name : finder.keys()) {
            QJsonObject without = finder;
            without.remove(name);
            const bool isNeeded = texts(defined(definition)["required"]).contains(name);
            EXPECT_EQ(isRead(withFinder(without)), !isNeeded) << definition.toStdString() << name.toStdString();
        }
    }
}

TEST(CatalogueSchema, WhatItForbidsIsRefused) {
    for (const QString& definition : finderDefinitions()) {
        const QJsonObject finder = fullFinder(definition);
        for (const QString& name : finder.keys()) {
            for (const QJsonValue& other : {QJsonValue(true), QJsonValue("7"), QJsonValue(7), QJsonValue(QJsonArray()),
                                            QJsonValue(QJsonObject()), QJsonValue()}) {
                QJsonObject changed = finder;
                changed[name] = other;
                const bool isOfItsKind = other.type() == finder[name].type() && name != "type";
                EXPECT_EQ(isRead(withFinder(changed)), isOfItsKind) << definition.toStdString() << name.toStdString();
            }
        }
        QJsonObject more = finder;
        more.insert("another", "x");
        EXPECT_FALSE(isRead(withFinder(more))) << definition.toStdString();
    }
}

TEST(CatalogueSchema, ItsLimitsAreTheReaders) {
    const QJsonObject finders = defined("finders").toObject();
    EXPECT_EQ(finders["maxItems"].toInt(), static_cast<int>(mostFinders));
    const QJsonObject mode = defined("matchMode").toObject();
    QJsonObject finder = fullFinder("uninstall");
    for (const double number : {mode["minimum"].toDouble(), mode["maximum"].toDouble()}) {
        finder["matchMode"] = number;
        EXPECT_TRUE(isRead(withFinder(finder))) << number;
        finder["matchMode"] = number + (number < 0 ? -1 : 1);
        EXPECT_FALSE(isRead(withFinder(finder))) << number;
    }
    const QRegularExpression pattern(defined("folder")["properties"]["folder"]["pattern"].toString());
    for (const char16_t character : {u'\0', u'\x1F', u' ', u'~', u'\x7F', u'\x9F', u'\xA0', u'\x2028'}) {
        const QString text = QString("D:") + QChar(character);
        QJsonObject folder = fullFinder("folder");
        folder["folder"] = text;
        EXPECT_EQ(isRead(withFinder(folder)), pattern.match(text).hasMatch()) << static_cast<int>(character);
    }
}

TEST(CatalogueSchema, GamesAreWhatTheReaderTakesForOnes) {
    const QJsonObject game = defined("game").toObject();
    EXPECT_EQ(game["properties"].toObject().keys(), (QStringList{"finders", "name"}));
    EXPECT_EQ(texts(game["required"]), (QStringList{"name", "finders"}));
    EXPECT_EQ(game["additionalProperties"], QJsonValue(false));
    EXPECT_EQ(game["properties"]["name"]["minLength"].toInt(), 1);
    const QJsonObject good = {{"name", "x"}, {"finders", QJsonArray()}};
    EXPECT_TRUE(isRead(withGame(good)));
    for (const QJsonObject& bad : {QJsonObject{{"name", "x"}}, QJsonObject{{"finders", QJsonArray()}},
                                   QJsonObject{{"name", ""}, {"finders", QJsonArray()}},
                                   QJsonObject{{"name", "x"}, {"finders", QJsonArray()}, {"another", 1}}}) {
        EXPECT_FALSE(isRead(withGame(bad))) << QJsonDocument(bad).toJson().toStdString();
    }
}

TEST(CatalogueSchema, TheWholeIsWhatTheReaderTakesForOne) {
    const QJsonObject root = schema();
    EXPECT_EQ(root["properties"].toObject().keys(), (QStringList{"$schema", "games"}));
    EXPECT_EQ(texts(root["required"]), QStringList{"games"});
    EXPECT_EQ(root["additionalProperties"], QJsonValue(false));
    EXPECT_TRUE(isRead({{"$schema", "x"}, {"games", QJsonArray()}}));
    EXPECT_FALSE(isRead({{"$schema", "x"}}));
    EXPECT_FALSE(isRead({{"games", QJsonArray()}, {"another", 1}}));
}

TEST(CatalogueSchema, TheSamplesNameIt) {
    const QString named = QJsonDocument::fromJson(docText("../samples/catalogue.json").toUtf8())["$schema"].toString();
    EXPECT_TRUE(QFile::exists(QString(LURULUDRI_SAMPLES "/") + named)) << named.toStdString();
}

} // namespace
