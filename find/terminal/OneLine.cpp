#include "find/terminal/OneLine.h"

#include <QChar>

namespace Find {

QString oneLine(const QString& text) {
    QString line = text;
    for (QChar& character : line) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            character = QLatin1Char(' ');
        }
    }
    return line;
}

} // namespace Find
