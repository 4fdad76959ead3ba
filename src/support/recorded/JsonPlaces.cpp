#include "support/recorded/JsonPlaces.h"

#include <algorithm>
#include <cstring>

namespace Recorded {

int lineAt(const QByteArray& text, int offset) {
    return static_cast<int>(std::count(text.begin(), text.begin() + std::min(offset, text.size()), '\n')) + 1;
}

int lineOfMember(const QByteArray& json, const QStringList& names) {
    int offset = 0;
    for (const QString& name : names) {
        const int found = json.indexOf('"' + name.toUtf8() + '"', offset);
        if (found < 0) {
            break;
        }
        offset = found + 1;
    }
    return lineAt(json, offset);
}

int strayBackslash(const QByteArray& json) {
    bool isInString = false;
    for (int i = 0; i < json.size(); ++i) {
        if (json.at(i) == '"') {
            isInString = !isInString;
        } else if (isInString && json.at(i) == '\\') {
            ++i;
            if (i < json.size() && !std::strchr("\"\\/bfnrtu", json.at(i))) {
                return i - 1;
            }
        }
    }
    return -1;
}

} // namespace Recorded
