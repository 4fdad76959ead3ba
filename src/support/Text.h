#pragma once

#include <QString>

namespace Text {

/// A path out of its quotes: when `text` begins with a double quote, `text` without its first and its last character,
/// whatever the last one is; otherwise `text` unchanged. Whoever passes arguments after the closing quote so gets a
/// path that does not exist, and the finders rely on it.
QString unquote(const QString& text);

} // namespace Text
