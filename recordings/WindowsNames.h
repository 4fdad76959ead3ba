#pragma once

#include <QString>

namespace Recordings {

/// `name` in the form in which Windows compares names of keys, values and files: each UTF-16 unit in upper case. Two
/// names are the same when their folded forms are equal; lists are in the order of the folded forms.
QString foldName(const QString& name);

} // namespace Recordings
