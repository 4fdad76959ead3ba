#pragma once

#include "find/terminal/Terminal.h"
#include "find/terminal/ToneText.h"

#include <QString>

#include <vector>

namespace Find {

struct TableCell {
    TableCell(const QString& cellText, Tone cellTone = Tone::Plain)
        : text(cellText)
        , tone(cellTone) {}

    QString text;
    Tone tone;
};

using TableRow = std::vector<TableCell>;

struct Table {
    std::size_t leading = 1;    ///< the first columns, of short cells, which stay beside each other on every terminal
    std::vector<TableRow> rows; ///< some can have fewer cells than others
};

/// The table as lines of text. With no limit to the width, a row is a line and a column as wide as its widest cell. On
/// a terminal that is too narrow for that, the cells behind the leading columns go below each other, so that as few as
/// possible have to be broken into several lines; those that are go on two columns further in. Nothing is left out.
QString renderTable(const Table& table, const Terminal& terminal = {});

} // namespace Find
