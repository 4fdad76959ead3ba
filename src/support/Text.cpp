#include "support/Text.h"

#include <algorithm>

namespace Text {

namespace {

/// How many places are looked at before it is asked whether any fits, so that compilers look at several at once.
constexpr std::size_t block = 32;

/// Whether `first` is at any of a block's places with `last` so far behind it.
bool mayBegin(const char16_t* places, std::size_t distance, char16_t first, char16_t last) noexcept {
    unsigned fits = 0;
    for (std::size_t i = 0; i < block; ++i) {
        fits |= static_cast<unsigned>(places[i] == first) & static_cast<unsigned>(places[i + distance] == last);
    }
    return fits != 0;
}

} // namespace

QString unquote(const QString& text) {
    if (!text.startsWith(QLatin1Char('"'))) {
        return text;
    }
    return text.mid(1, text.size() - 2);
}

QString foldCase(const QString& text) {
    QString folded = text;
    foldCase(folded.data(), static_cast<std::size_t>(folded.size()));
    return folded;
}

void foldCase(QChar* text, std::size_t length) noexcept {
    QChar previous;
    for (QChar* unit = text; unit != text + length; ++unit) {
        const QChar original = *unit;
        if (original.isLowSurrogate() && previous.isHighSurrogate()) {
            // Both letters of a pair beyond the basic plane begin with the same unit.
            *unit = QChar(QChar::lowSurrogate(QChar::toCaseFolded(QChar::surrogateToUcs4(previous, original))));
        } else {
            *unit = original.toCaseFolded();
        }
        previous = original;
    }
}

std::size_t indexOf(std::u16string_view text, std::u16string_view sought, std::size_t from) noexcept {
    if (text.size() < sought.size()) {
        return std::u16string_view::npos;
    }
    const std::size_t distance = sought.size() - 1;
    const std::size_t end = text.size() - distance; // behind the last place
    for (std::size_t begin = from; begin < end; begin += block) {
        const std::size_t stop = std::min(begin + block, end);
        if (begin + block <= end && !mayBegin(text.data() + begin, distance, sought.front(), sought.back())) {
            continue;
        }
        for (std::size_t place = begin; place < stop; ++place) {
            if (text[place] == sought.front() && text.compare(place, sought.size(), sought) == 0) {
                return place;
            }
        }
    }
    return std::u16string_view::npos;
}

} // namespace Text
