#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Recordings {

/// The text of a recorded PC as it stands in a page: the same JSON, with no sign in it that ends or begins anything in
/// HTML or in a script.
QByteArray pcForPage(const QByteArray& json);

/// The recorded PC that the page carries, in the lines in which it stands there, so that its faults are told in the
/// page's own. Empty when the page carries none, or not all of it; `fault` then says so.
std::optional<QByteArray> pcInPage(const QByteArray& page, QString& fault);

/// Whether the file is a page, whole or not: its first sign tells.
bool isPage(const QByteArray& file);

} // namespace Recordings
