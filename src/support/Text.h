#pragma once

#include <QString>

#include <cstddef>
#include <string_view>

namespace Text {

/// A path out of its quotes: when `text` begins with a double quote, `text` without its first and its last character,
/// whatever the last one is; otherwise `text` unchanged. Whoever passes arguments after the closing quote so gets a
/// path that does not exist, and the finders rely on it.
QString unquote(const QString& text);

/// `text` with the case of each character folded, so that two texts are the same exactly when QString::compare calls
/// them equal with Qt::CaseInsensitive, and one contains another exactly when QString::contains says so. (Unlike
/// QString::toCaseFolded, which also makes "ss" of "ß".)
///
/// But for half a character: whether a text contains the second unit of a surrogate pair by itself, which is no text,
/// is answered for the folded pair.
QString foldCase(const QString& text);

/// The same in place.
void foldCase(QChar* text, std::size_t length) noexcept;

/// Where `sought`, which must not be empty, is first in `text` at or after `from`; npos when nowhere. Takes much less
/// than a nanosecond a character, however short `sought` is, which is where the library's own searches take long.
std::size_t indexOf(std::u16string_view text, std::u16string_view sought, std::size_t from) noexcept;

} // namespace Text
