#pragma once

#include "recordings/RegFile.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace Find {

/// Gives what a recording has in the place of a text that a finder uses.
using MapText = std::function<QString(const QString& text)>;

/// Of a file's contents only what finders use, in a file that they read as they read the whole one. No value for a
/// file of which nobody knows what finders use.
std::optional<QByteArray> usedContents(const QString& path, const QByteArray& contents, const MapText& map);

/// Of a value only what finders use: a string up to its end; of a type that they only see as "?" the type and the size.
Recordings::RegValue usedValue(const Recordings::RegValue& value, const MapText& map);

} // namespace Find
