#include "support/NameTable.h"

namespace Text {

QString foldCase(const QString& text) {
    QString folded = text;
    const QChar* const begin = text.constData();
    QChar* unit = folded.data();
    for (int i = 0; i < text.size(); ++i, ++unit) {
        if (unit->isLowSurrogate() && i > 0 && begin[i - 1].isHighSurrogate()) {
            // Both letters of a pair beyond the basic plane begin with the same unit.
            const uint pair = QChar::toCaseFolded(QChar::surrogateToUcs4(begin[i - 1], *unit));
            *unit = QChar(QChar::lowSurrogate(pair));
        } else if (!unit->isSurrogate()) {
            *unit = unit->toCaseFolded();
        }
    }
    return folded;
}

} // namespace Text
