#pragma once

#include <QByteArray>
#include <QStringList>

namespace Recorded {

/// The line, counted from 1, in which `offset` lies.
int lineAt(const QByteArray& text, int offset);

/// The line of a member of nested JSON objects, named from the outermost in: the first place where the names come one
/// after the other. The last line that was found on the way when one of them doesn't come.
int lineOfMember(const QByteArray& json, const QStringList& names);

/// Where a string of JSON has a backslash before a character that JSON has no such form for; -1 when there is none.
/// Qt reads on without a word, and a path loses its separators.
int strayBackslash(const QByteArray& json);

} // namespace Recorded
