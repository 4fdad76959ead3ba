#pragma once

#include <QString>

#include <string>
#include <vector>

/// The library's log files, for floors that write what it wrote.
namespace Logs {

void remove(const QString& logger);

/// What reached the file by one write each: the two lines of its opening together, the others one by one.
std::vector<std::string> pieces(const QString& logger);

} // namespace Logs
