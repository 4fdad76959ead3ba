#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace Recordings {

/// The types of values, by Windows' numbers.
namespace RegType {
constexpr quint32 string = 1;
constexpr quint32 expandable = 2; ///< a string in which variables are to be replaced
constexpr quint32 binary = 3;
constexpr quint32 dword = 4;
} // namespace RegType

/// A string as the registry stores it, with its end.
QByteArray storedText(const QString& text);

/// The text of a plain string that is stored with its end; empty for any other value.
std::optional<QString> textOf(quint32 type, const QByteArray& data);

} // namespace Recordings
