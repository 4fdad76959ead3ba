#include "find/terminal/TextWidth.h"

#include <QChar>
#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

struct Range {
    uint first;
    uint last;
};

/// What Unicode calls wide or fullwidth, with the unassigned characters between.
constexpr Range wideRanges[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},
    {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
    {0x2693, 0x2693},   {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
    {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
    {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},
    {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
    {0x27B0, 0x27B0},   {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},
    {0x2E80, 0x303E},   {0x3041, 0x3247},   {0x3250, 0x4DBF},   {0x4E00, 0xA4C6},   {0xA960, 0xA97C},
    {0xAC00, 0xD7A3},   {0xF900, 0xFAD9},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6B},   {0xFF01, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x16FE0, 0x1B2FB}, {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E},
    {0x1F191, 0x1F19A}, {0x1F200, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393},
    {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E},
    {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567},
    {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596}, {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5},
    {0x1F6CC, 0x1F6CC}, {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6DF}, {0x1F6EB, 0x1F6EC}, {0x1F6F4, 0x1F6FC},
    {0x1F7E0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAF6},
    {0x20000, 0x3FFFD},
};

bool isWide(uint character) {
    const auto* const range = std::lower_bound(std::begin(wideRanges), std::end(wideRanges), character,
                                               [](const Range& r, uint wanted) { return r.last < wanted; });
    return range != std::end(wideRanges) && character >= range->first;
}

bool isInvisible(uint character) {
    constexpr uint softHyphen = 0xAD; // terminals show it
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        return true;
    case QChar::Other_Format:
        return character != softHyphen;
    default:
        return character >= 0x1160 && character <= 0x11FF; // vowels and ends that join a Korean syllable
    }
}

int widthOf(uint character) {
    if (isInvisible(character)) {
        return 0;
    }
    return isWide(character) ? 2 : 1;
}

/// The character that begins at `place`, which is then behind it.
uint nextCharacter(const QString& text, int& place) {
    const QChar unit = text.at(place++);
    if (unit.isHighSurrogate() && place < text.size() && text.at(place).isLowSurrogate()) {
        return QChar::surrogateToUcs4(unit, text.at(place++));
    }
    return unit.unicode();
}

} // namespace

int displayWidth(const QString& text) {
    int width = 0;
    for (int place = 0; place < text.size();) {
        width += widthOf(nextCharacter(text, place));
    }
    return width;
}

int fittingLength(const QString& text, int start, int width) {
    int end = start;
    int used = 0;
    while (end < text.size()) {
        int next = end;
        const int more = widthOf(nextCharacter(text, next));
        if (more > 0 && used > 0 && used + more > width) {
            break;
        }
        used += more;
        end = next;
    }
    return end - start;
}

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
