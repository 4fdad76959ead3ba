#pragma once

#include <QByteArray>
#include <QString>

namespace Recordings {

constexpr int westernCodePage = 1252;

bool isKnownCodePage(int codePage);

/// Text in an ANSI code page; "?" for what it lacks. A code page that isn't known counts as Windows-1252.
QByteArray toAnsi(const QString& text, int codePage = westernCodePage);

/// The text of bytes in an ANSI code page.
QString fromAnsi(const QByteArray& bytes, int codePage = westernCodePage);

} // namespace Recordings
