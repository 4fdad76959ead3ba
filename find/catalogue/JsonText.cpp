#include "find/catalogue/JsonText.h"

#include <QtGlobal>

#include <algorithm>
#include <cctype>

namespace Find {

namespace {

bool isHexDigit(char character) {
    return std::isxdigit(static_cast<unsigned char>(character)) != 0;
}

/// The length of the escape sequence that begins at `offset`; 0 when there is none of that form.
int escapeLength(const QByteArray& json, int offset) {
    const char kind = offset + 1 < json.size() ? json.at(offset + 1) : '\0';
    if (kind == 'u') {
        const QByteArray digits = json.mid(offset + 2, 4);
        return digits.size() == 4 && std::all_of(digits.begin(), digits.end(), isHexDigit) ? 6 : 0;
    }
    return kind != '\0' && QByteArrayLiteral("\"\\/bfnrt").contains(kind) ? 2 : 0;
}

/// Looks through the string whose opening quote is at `offset`, which then is behind the closing one.
std::optional<JsonFault> checkString(const QByteArray& json, int& offset) {
    const int start = offset++;
    while (offset < json.size() && json.at(offset) != '"') {
        const char character = json.at(offset);
        if (character == '\n' || character == '\r') {
            break;
        }
        if (static_cast<unsigned char>(character) < 0x20) {
            return JsonFault{offset, QStringLiteral("control character in a string")};
        }
        const int length = character == '\\' ? escapeLength(json, offset) : 1;
        if (length == 0) {
            return JsonFault{offset, QStringLiteral("illegal escape sequence (a backslash is written \\\\)")};
        }
        offset += length;
    }
    if (offset >= json.size() || json.at(offset) != '"') {
        return JsonFault{start, QStringLiteral("unterminated string")};
    }
    ++offset;
    return std::nullopt;
}

} // namespace

std::optional<JsonFault> findStringFault(const QByteArray& json) {
    int offset = 0;
    while (offset < json.size()) {
        if (json.at(offset) != '"') {
            ++offset;
            continue;
        }
        const std::optional<JsonFault> fault = checkString(json, offset);
        if (fault) {
            return fault;
        }
    }
    return std::nullopt;
}

TextPosition textPosition(const QByteArray& utf8, int offset) {
    TextPosition position;
    const int end = qBound(0, offset, utf8.size());
    for (int i = 0; i < end; ++i) {
        const char byte = utf8.at(i);
        const bool continuesCharacter = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
        if (byte == '\n') {
            ++position.line;
            position.column = 1;
        } else if (!continuesCharacter) {
            ++position.column;
        }
    }
    return position;
}

} // namespace Find
