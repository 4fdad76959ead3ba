#include "find/explain/Explanation.h"

#include "find/answers/Answers.h"
#include "find/catalogue/FinderTypes.h"
#include "find/explain/EventText.h"
#include "find/explain/IndexText.h"
#include "find/explain/TraceTree.h"
#include "find/explain/Words.h"
#include "find/terminal/OneLine.h"

#include <QStringList>

#include <algorithm>
#include <functional>

namespace Find {

namespace {

QString valueText(const QString& text) {
    return QLatin1Char('"') + oneLine(text) + QLatin1Char('"');
}

QString valueText(const QStringList& texts) {
    QStringList list;
    for (const QString& text : texts) {
        list.append(valueText(text));
    }
    return QLatin1Char('[') + list.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString valueText(int number) {
    return QString::number(number);
}

QString valueText(const std::vector<FinderEntry>& finders) {
    return QString::number(finders.size());
}

/// The finder as the catalogue has it.
QString titleOf(const FinderEntry& finder) {
    QStringList fields;
    for (const FinderField& field : finder.type->fields) {
        const QString value = std::visit([&finder](auto target) { return valueText(finder.*target); }, field.target);
        fields.append(QStringLiteral("%1 %2").arg(QLatin1String(field.name), value));
    }
    return QStringLiteral("%1: %2").arg(QLatin1String(finder.type->name), fields.join(QLatin1String(", ")));
}

using Kind = ExplanationLine::Kind;

/// How a list of what is installed was made, for people.
using DescribeIndex = std::function<QStringList(const TraceSection& index)>;

class Explainer {
public:
    explicit Explainer(DescribeIndex describe)
        : m_describeIndex(std::move(describe)) {}

    /// What happened within a section in which these finders were asked. `place` is what their numbers begin with:
    /// "2." within a multi finder that is the second.
    void addSection(const TraceSection& section, const std::vector<FinderEntry>& finders, const QString& place);

    const std::vector<ExplanationLine>& lines() const { return m_lines; }

private:
    void add(Kind kind, const QString& text) { m_lines.push_back({kind, text}); }

    void addInner(const TraceSection& inner, const std::vector<FinderEntry>& finders, const QString& place);
    void addFinder(const TraceSection& section, const FinderEntry& finder, const QString& number);
    void addEvent(const TraceEvent& event);
    void add(Kind kind, const QStringList& texts);

    DescribeIndex m_describeIndex;
    std::vector<ExplanationLine> m_lines;
    QStringList m_userLocation; ///< what was told of the user's choice last
};

void Explainer::addSection(const TraceSection& section, const std::vector<FinderEntry>& finders, const QString& place) {
    int asked = 0;
    for (const TraceSection::Part& part : section.parts) {
        if (const auto* const event = std::get_if<TraceEvent>(&part)) {
            addEvent(*event);
            continue;
        }
        const TraceSection& inner = *std::get<std::unique_ptr<TraceSection>>(part);
        asked = std::max(asked, inner.number);
        addInner(inner, finders, place);
    }
    for (auto i = static_cast<std::size_t>(asked); i < finders.size(); ++i) {
        add(Kind::Finder, QStringLiteral("%1%2. %3").arg(place, QString::number(i + 1), titleOf(finders[i])));
        add(Kind::Outcome, QStringLiteral("=> not asked"));
    }
}

void Explainer::addInner(const TraceSection& inner, const std::vector<FinderEntry>& finders, const QString& place) {
    const auto index = static_cast<std::size_t>(inner.number) - 1;
    if (inner.kind == TraceSection::Kind::Index) {
        add(Kind::Seen, m_describeIndex(inner));
    } else if (inner.kind == TraceSection::Kind::Finder && inner.number > 0 && index < finders.size()) {
        addFinder(inner, finders[index], place + QString::number(inner.number) + QLatin1Char('.'));
    }
}

void Explainer::addFinder(const TraceSection& section, const FinderEntry& finder, const QString& number) {
    add(Kind::Finder, number + QLatin1Char(' ') + titleOf(finder));
    addSection(section, finder.finders, number);
    const QString outcome = section.found ? QStringLiteral("=> found") : QStringLiteral("=> not found");
    add(Kind::Outcome, finder.finders.empty() ? outcome : QStringLiteral("%1 by %2").arg(outcome, number));
}

void Explainer::addEvent(const TraceEvent& event) {
    if (isOfLogLevel(event)) {
        return;
    }
    const QStringList lines = describeEvent(event);
    if (std::holds_alternative<Trace::UserLocation>(event)) {
        // After a finder, its multi finder asks for the user's choice as well.
        if (lines == m_userLocation) {
            return;
        }
        m_userLocation = lines;
    }
    add(std::holds_alternative<Trace::Note>(event) ? Kind::Reason : Kind::Seen, lines);
}

void Explainer::add(Kind kind, const QStringList& texts) {
    for (const QString& text : texts) {
        add(kind, text);
    }
}

QString outcomeOf(const GameAnswer& answer) {
    if (!answer.found) {
        return QStringLiteral("not found");
    }
    return QStringLiteral("found in %1, started by %2")
        .arg(oneLine(answer.location.installFolder), oneLine(answer.location.launchCommand));
}

} // namespace

std::vector<ExplanationLine> explainSearch(const Game& game, const TraceEvents& events) {
    Explainer explainer([](const TraceSection&) { return QStringList(); });
    explainer.addSection(traceTree(events), game.finders, QString());
    return explainer.lines();
}

Explanation explain(const Game& game, const GameAnswer& answer, const TraceEvents& events, bool isFull) {
    const TraceSection whole = traceTree(events);
    const QStringList words = searchWords(game);
    Explainer explainer(
        [&](const TraceSection& index) { return describeIndex(index, isFull ? QStringList() : words); });
    explainer.addSection(whole, game.finders, QString());
    Explanation explanation;
    explanation.outcome = QStringLiteral("%1: %2").arg(oneLine(game.name), outcomeOf(answer));
    explanation.found = answer.found;
    explanation.lines = explainer.lines();
    if (game.finders.empty()) {
        explanation.lines.push_back({Kind::Reason, QStringLiteral("The catalogue has no finder for it.")});
    }
    explanation.similar = answer.found ? QStringList() : similarNames(whole, words);
    return explanation;
}

} // namespace Find
