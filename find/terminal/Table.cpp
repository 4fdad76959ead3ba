#include "find/terminal/Table.h"

#include "find/terminal/OneLine.h"
#include "find/terminal/TableLayout.h"
#include "find/terminal/TextWidth.h"

#include <QLatin1String>
#include <QStringList>

#include <algorithm>

namespace Find {

namespace {

QString blanks(int count) {
    return QString(count, QLatin1Char(' '));
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
            m_line += blanks(column - m_width) + coloured(text, tone, m_terminal);
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
    std::vector<std::vector<int>> cellWidths;
    for (const TableRow& row : table.rows) {
        std::vector<int>& widths = cellWidths.emplace_back();
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
