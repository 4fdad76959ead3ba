#include "support/Text.h"

namespace Text {

QString unquote(const QString& text) {
    if (!text.startsWith(QLatin1Char('"'))) {
        return text;
    }
    return text.mid(1, text.size() - 2);
}

QString foldCase(const QString& text) {
    QString folded = text;
    QChar previous;
    for (QChar& unit : folded) {
        const QChar original = unit;
        if (original.isLowSurrogate() && previous.isHighSurrogate()) {
            // Both letters of a pair beyond the basic plane begin with the same unit.
            unit = QChar(QChar::lowSurrogate(QChar::toCaseFolded(QChar::surrogateToUcs4(previous, original))));
        } else {
            unit = original.toCaseFolded();
        }
        previous = original;
    }
    return folded;
}

} // namespace Text
