#include "find/answers/Answers.h"
#include "find/explain/Explanation.h"
#include "find/explain/TraceReader.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

namespace {

QByteArray linesOf(const Find::TraceEvents& events) {
    QByteArray lines;
    for (const Find::TraceEvent& event : events) {
        lines += Trace::toLine(event);
    }
    return lines;
}

void checkLine(const QString& line) {
    const bool isOneLine = std::none_of(line.begin(), line.end(), [](QChar character) {
        return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
               character == QChar::ParagraphSeparator;
    });
    Fuzz::require(isOneLine, "a line that steers no terminal");
}

/// An explanation of anything tells the outcome, and its lines stay lines.
void explain(const Find::TraceEvents& events, bool isFull) {
    Find::Game game;
    game.name = QStringLiteral("Game");
    Find::GameAnswer answer;
    answer.name = game.name;
    const Find::Explanation explanation = Find::explain(game, answer, events, isFull);
    Fuzz::require(explanation.outcome.startsWith(QLatin1String("Game: not found")), "the outcome");
    for (const Find::ExplanationLine& line : explanation.lines) {
        checkLine(line.text);
    }
    for (const QString& name : explanation.similar) {
        checkLine(name);
    }
}

} // namespace

/// What was read of a trace is written as what is read again, and a line behind it is read, too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray trace = Fuzz::bytesOf(data, size);
    const Find::TraceEvents events = Find::parseTrace(trace);
    Fuzz::require(static_cast<int>(events.size()) <= trace.count('\n') + 1, "no more events than lines");
    const QByteArray written = linesOf(events);
    Fuzz::require(written.count('\n') == static_cast<int>(events.size()), "a line for each");
    Fuzz::require(linesOf(Find::parseTrace(written)) == written, "read again");

    const Trace::Event note = Trace::Note{QStringLiteral("behind")};
    const Find::TraceEvents more = Find::parseTrace(trace + '\n' + Trace::toLine(note));
    Fuzz::require(linesOf(more) == written + Trace::toLine(note), "a line behind is read");
    explain(events, true);
    explain(events, false);
    return 0;
}
