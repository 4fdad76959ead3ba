#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Recordings {

/// A place in a text, counted from 1; the column in UTF-16 units, as editors do.
struct JsonPlace {
    int line = 1;
    int column = 1;
};

/// One value of a JSON text and where it begins. QJsonDocument has no lines, keeps one of two members of a name, ends
/// the process when memory runs out and reads "C:\Games" without its backslash, and without a word.
struct JsonValue {
    enum class Kind { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    int line = 1;
    int column = 1;
    JsonPlace namePlace;          ///< where the name begins
    QString name;                 ///< of a member of an object
    QString text;                 ///< of a string; a number or a word as it is written
    std::vector<JsonValue> items; ///< of an array, or the members of an object in their order

    static JsonValue string(const QString& name, const QString& text);
    static JsonValue number(const QString& name, qint64 number);
    static JsonValue array(const QString& name);
    static JsonValue object(const QString& name);

    /// The member of that name; null when there is none, or this is no object.
    const JsonValue* member(QLatin1String wanted) const;
};

struct JsonFault {
    int line = 0; ///< 0 for the whole text
    int column = 0;
    QString message;
};

/// Empty when `json` is not JSON in UTF-8; `fault` then says why.
std::optional<JsonValue> parseJson(const QByteArray& json, JsonFault& fault);

/// The text of `value`, which reads as what it is, whatever its strings are made of. An object within an array stands
/// in one line, but for what is in its own arrays.
QByteArray renderJson(const JsonValue& value);

} // namespace Recordings
