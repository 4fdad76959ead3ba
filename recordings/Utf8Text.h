#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Recordings {

/// The text of bytes in UTF-8; empty when they are not.
std::optional<QString> decoded(const QByteArray& utf8);

} // namespace Recordings
