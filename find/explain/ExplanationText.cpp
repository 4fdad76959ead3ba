#include "find/explain/ExplanationText.h"

#include "find/explain/Explanation.h"
#include "find/terminal/ToneText.h"

#include <QJsonArray>

namespace Find {

namespace {

using Kind = ExplanationLine::Kind;

const QLatin1String indentation("   ");

Tone toneOf(const ExplanationLine& line) {
    switch (line.kind) {
    case Kind::Finder:
        return Tone::Heading;
    case Kind::Reason:
        return Tone::Bad;
    case Kind::Outcome:
        return line.text.startsWith(QLatin1String("=> found")) ? Tone::Good : Tone::Plain;
    case Kind::Seen:
        break;
    }
    return Tone::Plain;
}

QString nameOf(Kind kind) {
    switch (kind) {
    case Kind::Finder:
        return QStringLiteral("finder");
    case Kind::Reason:
        return QStringLiteral("reason");
    case Kind::Outcome:
        return QStringLiteral("outcome");
    case Kind::Seen:
        break;
    }
    return QStringLiteral("seen");
}

} // namespace

QString renderExplanation(const Explanation& explanation, const Terminal& terminal) {
    QString text = renderLine(explanation.outcome, explanation.found ? Tone::Good : Tone::Bad, terminal);
    for (const ExplanationLine& line : explanation.lines) {
        const bool isFinder = line.kind == Kind::Finder;
        text += isFinder ? QString(QLatin1Char('\n')) : QString();
        text += renderLine((isFinder ? QString() : indentation) + line.text, toneOf(line), terminal);
    }
    if (!explanation.similar.isEmpty()) {
        text += QLatin1Char('\n') + renderLine(QStringLiteral("Similar names in the lists:"), Tone::Heading, terminal);
    }
    for (const QString& name : explanation.similar) {
        text += renderLine(indentation + name, Tone::Plain, terminal);
    }
    return text;
}

QJsonObject jsonOf(const Explanation& explanation) {
    QJsonArray lines;
    for (const ExplanationLine& line : explanation.lines) {
        lines.append(QJsonObject{{QStringLiteral("kind"), nameOf(line.kind)}, {QStringLiteral("text"), line.text}});
    }
    return {{QStringLiteral("explanation"), lines},
            {QStringLiteral("similar"), QJsonArray::fromStringList(explanation.similar)}};
}

} // namespace Find
