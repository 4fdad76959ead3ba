#include "find/terminal/Table.h"

#include "find/terminal/OneLine.h"
#include "find/terminal/TextWidth.h"

#include <QLatin1String>
#include <QStringList>

#include <algorithm>
#include <numeric>

namespace Find {

namespace {

using Widths = std::vector<int>;
using CellWidths = std::vector<Widths>;

constexpr int gapBetweenColumns = 2;
constexpr int leastColumn = 24; // smaller pieces can hardly be read
constexpr int indentBelow = 4;

/// How a table's columns share the lines.
struct TableLayout {
    Widths widths;  ///< of the columns that stand beside each other
    int indent = 0; ///< where the cells of the further columns stand, each on lines of its own
    int below = 0;  ///< the width of those cells
};

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

/// The layout for cells of these widths, row by row, that breaks the fewest cells; the more columns stand beside each
/// other the better. `leading` columns always do. All do when `width` is 0, for no limit.
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

QStringList linesOf(const TableCell& cell, int width) {
    return hangingLines(oneLine(cell.text), width);
}

/// Collects lines of cells.
class Lines {
public:
    explicit Lines(const Terminal& terminal)
        : m_terminal(terminal) {}

    /// The next cell of the line, at this column.
    void put(int column, const QString& text, Tone tone) {
        if (!text.isEmpty()) {
            m_line += QString(column - m_width, QLatin1Char(' ')) + coloured(text, tone, m_terminal);
            m_width = column + displayWidth(text);
        }
    }

    void endLine() {
        m_text += m_line + QLatin1Char('\n');
        m_line.clear();
        m_width = 0;
    }

    const QString& text() const { return m_text; }

private:
    const Terminal& m_terminal;
    QString m_text;
    QString m_line;
    int m_width = 0;
};

/// The cells that stand beside each other: as many lines as the highest of them.
void putBeside(const TableRow& row, const TableLayout& layout, Lines& lines) {
    const std::size_t count = std::min(row.size(), layout.widths.size());
    std::vector<QStringList> cells;
    int height = 1;
    for (std::size_t column = 0; column < count; ++column) {
        cells.push_back(linesOf(row[column], layout.widths[column]));
        height = std::max(height, cells.back().size());
    }
    for (int i = 0; i < height; ++i) {
        int place = 0;
        for (std::size_t column = 0; column < count; ++column) {
            lines.put(place, cells[column].value(i), row[column].tone);
            place += layout.widths[column] + gapBetweenColumns;
        }
        lines.endLine();
    }
}

/// The cells that stand below, from column `first` on.
void putBelow(const TableRow& row, std::size_t first, const TableLayout& layout, Lines& lines) {
    for (std::size_t column = first; column < row.size(); ++column) {
        const QStringList cell = row[column].text.isEmpty() ? QStringList() : linesOf(row[column], layout.below);
        for (const QString& line : cell) {
            lines.put(layout.indent, line, row[column].tone);
            lines.endLine();
        }
    }
}

void putRow(const TableRow& row, const TableLayout& layout, Lines& lines) {
    const std::size_t beside = std::min(row.size(), layout.widths.size());
    const auto isEmpty = [](const TableCell& cell) { return cell.text.isEmpty(); };
    const auto firstBelow = row.begin() + static_cast<std::ptrdiff_t>(beside);
    // A row that goes on with the one before has nothing but cells below.
    if (!std::all_of(row.begin(), firstBelow, isEmpty) || std::all_of(firstBelow, row.end(), isEmpty)) {
        putBeside(row, layout, lines);
    }
    putBelow(row, beside, layout, lines);
}

} // namespace

QString renderTable(const Table& table, const Terminal& terminal) {
    CellWidths cellWidths;
    for (const TableRow& row : table.rows) {
        Widths& widths = cellWidths.emplace_back();
        for (const TableCell& cell : row) {
            widths.push_back(displayWidth(oneLine(cell.text)));
        }
    }
    const TableLayout layout = chooseLayout(cellWidths, table.leading, terminal.width);
    Lines lines(terminal);
    for (const TableRow& row : table.rows) {
        putRow(row, layout, lines);
    }
    return lines.text();
}

} // namespace Find
