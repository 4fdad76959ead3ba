#pragma once

#include <QString>

namespace Find {

/// The text with a space for each character that would leave the line or steer the terminal: names come out of
/// registries and files, where anything can stand.
QString oneLine(const QString& text);

} // namespace Find
