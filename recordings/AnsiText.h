#pragma once

#include <QByteArray>
#include <QString>

namespace Recordings {

/// Text in Windows-1252, the ANSI code page of a recorded PC; "?" for what it lacks.
QByteArray toAnsi(const QString& text);

/// The text of bytes in Windows-1252.
QString fromAnsi(const QByteArray& bytes);

} // namespace Recordings
