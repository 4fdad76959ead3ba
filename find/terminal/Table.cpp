#include "find/terminal/Table.h"

#include "find/terminal/OneLine.h"
#include "find/terminal/TableLayout.h"
#include "find/terminal/TextWidth.h"
#include "find/terminal/WrapText.h"

#include <QLatin1String>
#include <QStringList>

#include <algorithm>

namespace Find {

namespace {

constexpr int hangingIndent = 2; // tells the rest of a cell from the next cell

QString blanks(int count) {
    return QString(count, QLatin1Char(' '));
}

/// A cell as lines of at most `width` columns; at least one.
QStringList linesOf(const TableCell& cell, int width) {
    const QString text = oneLine(cell.text);
    if (displayWidth(text) <= width) {
        return {text};
    }
    QStringList lines = wrapText(text, width, std::max(width - hangingIndent, 1));
    for (int i = 1; i < lines.size(); ++i) {
        lines[i].prepend(blanks(hangingIndent));
    }
    return lines;
}

/// Collects lines of cells.
class Lines {
public:
    explicit Lines(const Terminal& terminal)
        : m_isColoured(terminal.colours) {}

    /// The next cell of the line, at this column.
    void put(int column, const QString& text, Tone tone) {
        if (!text.isEmpty()) {
            m_line += blanks(column - m_width) + coloured(text, tone);
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
    QString coloured(const QString& text, Tone tone) const {
        if (!m_isColoured || tone == Tone::Plain) {
            return text;
        }
        const char* const colour = tone == Tone::Heading ? "\x1B[1m" : tone == Tone::Good ? "\x1B[32m" : "\x1B[33m";
        return QLatin1String(colour) + text + QLatin1String("\x1B[0m");
    }

    bool m_isColoured;
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
