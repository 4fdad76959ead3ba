#pragma once

#include <QByteArray>
#include <QString>

namespace Recordings {

/// Text in UTF-16LE, unit by unit.
QByteArray toUtf16(const QString& text);

/// The text of bytes in UTF-16LE, without an odd byte at the end.
QString fromUtf16(const QByteArray& bytes);

} // namespace Recordings
