#include "find/terminal/TableLayout.h"

#include <algorithm>
#include <numeric>

namespace Find {

namespace {

using Widths = std::vector<int>;
using CellWidths = std::vector<Widths>;

constexpr int leastColumn = 24; // smaller pieces can hardly be read
constexpr int indentBelow = 4;

/// The width of the widest cell in each of the first `count` columns; the last one's includes those of all further
/// ones.
Widths naturalWidths(const CellWidths& cells, std::size_t count) {
    Widths widths(count);
    for (const Widths& row : cells) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            int& width = widths[std::min(column, count - 1)];
            width = std::max(width, row[column]);
        }
    }
    return widths;
}

/// The widths when none is more than `most`.
Widths capped(Widths widths, int most) {
    std::transform(widths.begin(), widths.end(), widths.begin(), [&](int width) { return std::min(width, most); });
    return widths;
}

/// The widths when the widest columns give way until all fit beside each other.
Widths fitted(const Widths& natural, int width) {
    const int gaps = static_cast<int>(natural.size() - 1) * gapBetweenColumns;
    const int room = width - gaps;
    int most = std::max(room, 1);
    Widths widths = capped(natural, most);
    while (most > 1 && std::accumulate(widths.begin(), widths.end(), 0) > room) {
        widths = capped(natural, --most);
    }
    return widths;
}

int startOf(const Widths& widths, std::size_t column) {
    return std::accumulate(widths.begin(), widths.begin() + static_cast<std::ptrdiff_t>(column), 0) +
           static_cast<int>(column) * gapBetweenColumns;
}

/// The first `count` columns beside each other, the further ones below the last of them.
TableLayout besideEachOther(const CellWidths& cells, std::size_t count, int width) {
    TableLayout layout;
    layout.widths = fitted(naturalWidths(cells, count), width);
    layout.indent = startOf(layout.widths, count - 1);
    layout.below = layout.widths.back();
    return layout;
}

/// The leading columns beside each other, the further ones below them on the whole width.
TableLayout belowEachOther(CellWidths cells, std::size_t leading, int width) {
    for (Widths& row : cells) {
        row.resize(std::min(row.size(), leading));
    }
    return {fitted(naturalWidths(cells, leading), width), indentBelow, width - indentBelow};
}

int widthOf(const TableLayout& layout, std::size_t column) {
    return column < layout.widths.size() ? layout.widths[column] : layout.below;
}

template <typename Predicate>
std::size_t countCells(const TableLayout& layout, const CellWidths& cells, Predicate predicate) {
    std::size_t count = 0;
    for (const Widths& row : cells) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            count += predicate(row[column], widthOf(layout, column)) ? 1 : 0;
        }
    }
    return count;
}

std::size_t brokenCells(const TableLayout& layout, const CellWidths& cells) {
    return countCells(layout, cells, [](int cell, int column) { return cell > column; });
}

bool isReadable(const TableLayout& layout, const CellWidths& cells) {
    return countCells(layout, cells, [](int cell, int column) { return cell > column && column < leastColumn; }) == 0;
}

} // namespace

TableLayout chooseLayout(const CellWidths& cells, std::size_t leading, int width) {
    std::size_t columns = leading;
    for (const Widths& row : cells) {
        columns = std::max(columns, row.size());
    }
    if (width == 0) {
        return {naturalWidths(cells, columns), 0, 0};
    }
    TableLayout best = belowEachOther(cells, leading, width);
    std::size_t fewest = brokenCells(best, cells);
    for (const std::size_t count : {std::min(leading + 1, columns), columns}) {
        const TableLayout wider = besideEachOther(cells, count, width);
        const std::size_t broken = brokenCells(wider, cells);
        if (broken <= fewest && isReadable(wider, cells)) {
            best = wider;
            fewest = broken;
        }
    }
    return best;
}

} // namespace Find
