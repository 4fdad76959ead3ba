#include "support/Text.h"

namespace Text {

QString unquote(const QString& text) {
    if (!text.startsWith(QLatin1Char('"'))) {
        return text;
    }
    return text.mid(1, text.size() - 2);
}

} // namespace Text
