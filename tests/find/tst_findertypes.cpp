#include "find/catalogue/FinderTypes.h"

#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace Find;

namespace {

/// The create operations that the header for hosts declares, in its order.
QStringList createOperations() {
    static const QRegularExpression declaration(R"(\b(create\w+Finder)\()");
    QStringList operations;
    auto matches = declaration.globalMatch(docText("../src/core/IGameFinderFactory.h"));
    while (matches.hasNext()) {
        operations.append(matches.next().captured(1));
    }
    return operations;
}

TEST(FinderTypes, HaveARowForEachCreateOperationOfTheFactory) {
    QStringList operations;
    for (const FinderType& type : finderTypes()) {
        operations.append(type.operation);
    }
    EXPECT_TRUE(createOperations().contains("createSteamFinder")) << "the header is read as it is written";
    EXPECT_EQ(operations, createOperations());
}

/// Or it would be missing in what `list` and reports tell.
TEST(FinderTypes, SearchEachListThatTheTraceCanTellOf) {
    QStringList lists;
    auto matches = QRegularExpression(R"(constexpr const char\* \w+ = "([A-Z]\w+)\";)")
                       .globalMatch(docText("../src/trace/Events.h").section("namespace IndexName", 1, 1));
    while (matches.hasNext()) {
        lists.append(matches.next().captured(1));
    }
    EXPECT_TRUE(lists.contains("Uninstall")) << "the header is read as it is written";
    for (const QString& list : lists) {
        const FinderType* const type = finderTypeOfList(list);
        ASSERT_NE(type, nullptr) << list.toStdString();
        EXPECT_STRNE(type->title, "");
    }
    EXPECT_EQ(finderTypeOfList("Other"), nullptr);
    EXPECT_EQ(finderTypeOfList(""), nullptr);
}

TEST(FinderTypes, AreAllInTheDocumentOfTheCatalogueWithTheirFields) {
    const QString document = docText("catalogue.md");
    for (const FinderType& type : finderTypes()) {
        QStringList fields;
        for (const FinderField& field : type.fields) {
            fields.append(QString("`%1`").arg(field.name));
        }
        const QString row = QString("| `%1` | %2 |").arg(type.name, fields.join(", "));
        EXPECT_TRUE(document.contains(row)) << "docs/catalogue.md has no row " << row.toStdString();
    }
}

/// So whoever tries the samples, and the tests that record them, see each kind at work.
TEST(FinderTypes, AreAllInTheSampleCatalogue) {
    const QString samples = docText("../samples/catalogue.json");
    for (const FinderType& type : finderTypes()) {
        const bool isMade = QLatin1String(type.name) == "multi"; // of a game's other finders
        EXPECT_TRUE(isMade || samples.contains(QString("\"type\": \"%1\"").arg(type.name))) << type.name;
    }
}

TEST(FinderTypes, AreAllInTheReadme) {
    const QString readme = docText("../README.md");
    for (const FinderType& type : finderTypes()) {
        EXPECT_TRUE(readme.contains(QString("| `%1` |").arg(type.operation))) << type.operation;
    }
}

} // namespace
