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

bool steersTerminal(QChar character) {
    return character.category() == QChar::Other_Control && character != QLatin1Char('\n');
}

/// An explanation has a first line whatever it is of, and steers no terminal.
void explain(const Find::TraceEvents& events, bool isFull) {
    Find::Game game;
    game.name = QStringLiteral("Game");
    Find::GameAnswer answer;
    answer.name = game.name;
    const QString text = Find::explain(game, answer, events, isFull);
    Fuzz::require(text.startsWith(QLatin1String("Game: not found\n")), "the first line");
    Fuzz::require(std::none_of(text.begin(), text.end(), steersTerminal), "no control characters");
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
