#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Host {

/// Rows as lines of text, each column as wide as its widest cell. A row may have fewer cells than others; every cell
/// stays on its line.
QString renderTable(const std::vector<QStringList>& rows);

} // namespace Host
