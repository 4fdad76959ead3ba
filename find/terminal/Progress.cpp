#include "find/terminal/Progress.h"

#include "find/terminal/Console.h"
#include "find/terminal/OneLine.h"
#include "find/terminal/TextWidth.h"

#include <QElapsedTimer>
#include <QLatin1String>

#include <utility>

namespace Find {

namespace {

constexpr qint64 quickTaskMs = 500;
constexpr qint64 betweenLinesMs = 100;

int widthOf(const Terminal& terminal) {
    return terminal.isTerminal && terminal.rewritesLines ? terminal.width : 0;
}

Progress::Clock systemClock() {
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

/// The line, cut so that it is narrower than the terminal: a full line could be continued on the next.
QString shortened(const QString& line, int width) {
    if (displayWidth(line) < width) {
        return line;
    }
    const QString dots = QStringLiteral("...");
    return line.left(fittingLength(line, 0, width - 1 - dots.size())) + dots;
}

} // namespace

Progress::Progress(const QString& title)
    : Progress(title, widthOf(Console::terminal(Stream::Errors)), systemClock(), &Console::showPassingLine) {}

Progress::Progress(const QString& title, int width, Clock clock, Show show)
    : m_title(title)
    , m_width(width)
    , m_clock(std::move(clock))
    , m_show(std::move(show))
    , m_nextShow(m_clock() + quickTaskMs) {}

Progress::~Progress() {
    finish();
}

void Progress::step(int done, int total, const QString& what) {
    if (m_width == 0) {
        return;
    }
    const qint64 now = m_clock();
    if (now < m_nextShow) {
        return;
    }
    m_nextShow = now + betweenLinesMs;
    QString line = m_title + QLatin1Char(' ') + QString::number(done);
    if (total > 0) {
        line += QLatin1Char('/') + QString::number(total);
    }
    m_show(shortened(oneLine(line + QLatin1String(": ") + what), m_width));
    m_isShown = true;
}

void Progress::finish() {
    m_width = 0;
    if (m_isShown) {
        m_isShown = false;
        m_show(QString());
    }
}

} // namespace Find
