#include "FindTest.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// The examples of docs/json.md: first games, then only the runtimes, then an error.
QStringList examples() {
    QStringList found;
    const QStringList parts = docText("json.md").split("```");
    for (const QString& part : parts) {
        if (part.startsWith("json\n")) {
            found.append(part.mid(5));
        }
    }
    return found;
}

QJsonObject objectOf(const QString& json) {
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

/// The names and types of all fields.
QStringList shapeOf(const QJsonObject& object) {
    QStringList shape;
    for (const QString& key : object.keys()) {
        shape.append(key + ": " + QString::number(object[key].type()));
    }
    return shape;
}

using JsonDoc = FindTest;
using JsonDocOfTheSamplePc = RecordingFindTest;

TEST_F(JsonDocOfTheSamplePc, ItsExamplesAreWhatTheProgramPrints) {
    ASSERT_EQ(examples().size(), 3);
    const QStringList common = {"--pc", LURULUDRI_SAMPLES "/pc", "--json"};
    const FindRun games =
        program.runBare(common + QStringList{"--game", "Lantern Harbour", "--game", "Nordlicht Tactics",
                                             LURULUDRI_SAMPLES "/catalogue.json"});
    EXPECT_EQ(games.output, examples().value(0));
    EXPECT_EQ(games.exitStatus, 1);
    const FindRun runtimes = program.runBare(common + QStringList{"runtimes"});
    EXPECT_EQ(runtimes.output, examples().value(1));
    EXPECT_EQ(runtimes.exitStatus, 0);
}

TEST_F(JsonDoc, ItsFieldsAreThoseThatTheProgramPrints) {
    const QString catalogue = program.file("games.json", R"({"games": [
        {"name": "Käferrennen", "finders": [{"type": "universalApp", "packageFamily": "installed"}]},
        {"name": "Wal", "finders": []}]})");
    const QJsonObject printed = objectOf(program.run({"--json", catalogue}).output);
    const QJsonObject described = objectOf(examples().value(0));
    EXPECT_EQ(shapeOf(printed), shapeOf(described));
    EXPECT_EQ(printed["version"], described["version"]);
    EXPECT_EQ(shapeOf(printed["runtimes"].toObject()), shapeOf(described["runtimes"].toObject()));
    for (const int game : {0, 1}) {
        EXPECT_EQ(shapeOf(printed["games"][game].toObject()), shapeOf(described["games"][game].toObject())) << game;
    }
}

TEST_F(JsonDoc, ItsErrorIsWhatTheProgramPrints) {
    program.file("games.json", QByteArray("\n").repeated(11) + "    \"");
    EXPECT_EQ(program.run({"--json", "games.json"}), printed(2, examples().value(2)));
}

TEST_F(JsonDoc, EveryFieldHasALineInItsTables) {
    const QString text = docText("json.md");
    const QJsonObject root = objectOf(examples().value(0));
    for (const QJsonObject& object : {root, root["runtimes"].toObject(), root["games"][0].toObject()}) {
        EXPECT_FALSE(object.isEmpty());
        for (const QString& key : object.keys()) {
            EXPECT_TRUE(text.contains("\n| `" + key + "` | ")) << key.toStdString();
        }
    }
}

} // namespace
