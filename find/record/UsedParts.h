#pragma once

#include "recordings/NeutralPc.h"
#include "recordings/RegFile.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Find {

/// Of a file's contents only what finders use, with each text mapped, in a file that they read as they read the whole
/// one. No value for a file of which nobody knows what finders use.
std::optional<QByteArray> usedContents(const QString& path, const QByteArray& contents, const Recordings::MapText& map);

/// The same of contents that hold nothing else.
QByteArray mappedContents(const QString& path, const QByteArray& contents, const Recordings::MapText& map);

/// Of a value only what finders use: a string up to its end; of a type that they only see as "?" the type and the size.
Recordings::RegValue usedValue(const Recordings::RegValue& value);

} // namespace Find
