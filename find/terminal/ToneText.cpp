#include "find/terminal/ToneText.h"

#include "find/terminal/OneLine.h"
#include "find/terminal/TextWidth.h"

#include <QLatin1String>

#include <algorithm>

namespace Find {

namespace {

constexpr int hangingIndent = 2;

int leadingBlanks(const QString& line) {
    const auto* const begin =
        std::find_if(line.begin(), line.end(), [](QChar character) { return character != QLatin1Char(' '); });
    return static_cast<int>(std::distance(line.begin(), begin));
}

} // namespace

QString coloured(const QString& text, Tone tone, const Terminal& terminal) {
    if (!terminal.colours || tone == Tone::Plain) {
        return text;
    }
    const char* const colour = tone == Tone::Heading ? "\x1B[1m" : tone == Tone::Good ? "\x1B[32m" : "\x1B[33m";
    return QLatin1String(colour) + text + QLatin1String("\x1B[0m");
}

QStringList hangingLines(const QString& text, int width) {
    if (displayWidth(text) <= width) {
        return {text};
    }
    QStringList lines = wrapText(text, width, std::max(width - hangingIndent, 1));
    for (int i = 1; i < lines.size(); ++i) {
        lines[i].prepend(QString(hangingIndent, QLatin1Char(' ')));
    }
    return lines;
}

QString renderLine(const QString& line, Tone tone, const Terminal& terminal) {
    const QString text = oneLine(line);
    const int indent = std::min(leadingBlanks(text), terminal.width / 2);
    const QString blanks(indent, QLatin1Char(' '));
    const QStringList lines =
        terminal.width > 0 ? hangingLines(text.mid(indent), terminal.width - indent) : QStringList{text};
    QString rendered;
    for (const QString& one : lines) {
        rendered += (terminal.width > 0 ? blanks : QString()) + coloured(one, tone, terminal) + QLatin1Char('\n');
    }
    return rendered;
}

} // namespace Find
