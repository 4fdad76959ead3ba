#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Find {

/// A fault in a JSON text, with the byte where it was noticed.
struct JsonFault {
    int offset = 0;
    QString message;
};

/// The first string of the text that is not JSON: one without an end, with a raw control character or with a backslash
/// before a letter that means nothing. Qt's parser takes the latter for the letter alone, so that `"D:\Games"` would
/// quietly become another folder. Empty when all strings are good.
std::optional<JsonFault> findStringFault(const QByteArray& json);

struct TextPosition {
    int line = 1;
    int column = 1; ///< in characters
};

/// Where in the UTF-8 text a byte is.
TextPosition textPosition(const QByteArray& utf8, int offset);

} // namespace Find
