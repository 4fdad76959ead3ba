#include "find/terminal/OneLine.h"

#include <QChar>

namespace Find {

QString oneLine(const QString& text) {
    QString line = text;
    for (QChar& character : line) {
        const QChar::Category category = character.category();
        const ushort unit = character.unicode();
        // Those that turn the direction would turn the rest of the line, too.
        const bool isTurning = (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || isTurning) {
            character = QLatin1Char(' ');
        }
    }
    return line;
}

} // namespace Find
