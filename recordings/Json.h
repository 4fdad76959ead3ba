#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Recordings {

/// One value of a JSON text and the line in which it begins. QJsonDocument has no lines, ends the process when memory
/// runs out and reads "C:\Games" without its backslash, and without a word.
struct JsonValue {
    enum class Kind { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    int line = 1;
    QString name;                 ///< of a member of an object
    QString text;                 ///< of a string
    std::vector<JsonValue> items; ///< of an array, or the members of an object in their order
};

struct JsonFault {
    int line = 0;
    QString message;
};

/// Empty when `json` is no JSON in UTF-8; `fault` then says why.
std::optional<JsonValue> parseJson(const QByteArray& json, JsonFault& fault);

} // namespace Recordings
