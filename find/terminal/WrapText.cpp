#include "find/terminal/WrapText.h"

#include "find/terminal/TextWidth.h"

#include <QLatin1String>

namespace Find {

namespace {

/// Where to break a piece that may go from `start` to `end`: behind one of the separators, unless that leaves the line
/// all but empty; -1 when there is no such place.
int breakBehind(const QString& text, int start, int end, QLatin1String separators) {
    const int least = start + (end - start) / 5;
    for (int place = end; place > start && place >= least; --place) {
        if (separators.contains(text.at(place - 1))) {
            return place;
        }
    }
    return -1;
}

int endOfLine(const QString& text, int start, int width) {
    const int end = start + fittingLength(text, start, width);
    if (end == text.size()) {
        return end;
    }
    for (const char* separators : {"\\/", " ", "&?=:;,.-_"}) {
        const int place = breakBehind(text, start, end, QLatin1String(separators));
        if (place > 0) {
            return place;
        }
    }
    return end;
}

} // namespace

QStringList wrapText(const QString& text, int firstWidth, int width) {
    QStringList lines;
    int start = 0;
    while (start < text.size()) {
        const int end = endOfLine(text, start, lines.isEmpty() ? firstWidth : width);
        lines.append(text.mid(start, end - start));
        start = end;
    }
    return lines;
}

} // namespace Find
