#include "find/terminal/Terminal.h"

#include <QProcessEnvironment>
#include <QString>

#include <algorithm>

namespace Find {

namespace {

constexpr int usualWidth = 80;

int widthOf(const TerminalFacts& facts, const QProcessEnvironment& environment) {
    const int wanted = environment.value(QStringLiteral("COLUMNS")).toInt(); // 0 when it is no number
    const int known = facts.width > 0 ? facts.width : usualWidth;
    return std::max(wanted > 0 ? wanted : known, leastWidth);
}

} // namespace

Terminal describeTerminal(const TerminalFacts& facts, const QProcessEnvironment& environment) {
    if (!facts.isTerminal) {
        return {};
    }
    const bool isDumb = environment.value(QStringLiteral("TERM")) == QLatin1String("dumb");
    Terminal terminal;
    terminal.isTerminal = true;
    terminal.width = widthOf(facts, environment);
    terminal.rewritesLines = !isDumb;
    terminal.colours = facts.obeysEscapes && !isDumb && environment.value(QStringLiteral("NO_COLOR")).isEmpty();
    return terminal;
}

} // namespace Find
