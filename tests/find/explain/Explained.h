#pragma once

#include "common/TraceLog.h"
#include "core/plugin/FindersFactory.h"
#include "find/answers/Answers.h"
#include "find/catalogue/Catalogue.h"
#include "find/explain/Explanation.h"
#include "find/explain/ExplanationText.h"
#include "find/explain/TraceReader.h"

#include <gtest/gtest.h>

#include <QStringList>

/// What is told, line by line, of a game "Käferrennen" with these finders, after the PC under test was really asked.
inline QStringList explained(const QByteArray& finders, bool isFull = false) {
    const QString json = QString("{\"games\": [{\"name\": \"Käferrennen\", \"finders\": [%1]}]}");
    Find::CatalogueFaults faults;
    const auto catalogue = Find::parseCatalogue(json.arg(QString::fromUtf8(finders)).toUtf8(), faults);
    EXPECT_TRUE(catalogue) << faults.front().message.toStdString();
    if (!catalogue) {
        return {};
    }
    const TraceLog trace;
    Finders::FindersFactory factory;
    const Find::Game& game = catalogue->front();
    const Find::GameAnswer answer = Find::askForGame(factory, game);
    const Find::TraceEvents events = Find::parseTrace(trace.bytes());
    return Find::renderExplanation(Find::explain(game, answer, events, isFull)).split('\n', Qt::SkipEmptyParts);
}
