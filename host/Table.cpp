#include "host/Table.h"

#include "host/OneLine.h"

#include <QChar>
#include <QVector>

#include <algorithm>

namespace Host {

namespace {

constexpr int gapBetweenColumns = 2;

int widthOf(const QString& text) {
    const QVector<uint> characters = text.toUcs4();
    return static_cast<int>(std::count_if(characters.begin(), characters.end(), [](uint character) {
        return QChar::category(character) != QChar::Mark_NonSpacing;
    }));
}

std::vector<int> columnWidths(const std::vector<QStringList>& rows) {
    std::vector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), static_cast<std::size_t>(row.size())));
        for (int column = 0; column < row.size(); ++column) {
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, widthOf(row.at(column)));
        }
    }
    return widths;
}

QString renderRow(const QStringList& row, const std::vector<int>& widths) {
    QString line;
    int blanks = 0; // put off until a cell follows, so that no line ends in blanks
    for (int column = 0; column < row.size(); ++column) {
        const QString cell = oneLine(row.at(column));
        if (!cell.isEmpty()) {
            line += QString(blanks, QLatin1Char(' ')) + cell;
            blanks = 0;
        }
        blanks += widths[static_cast<std::size_t>(column)] - widthOf(cell) + gapBetweenColumns;
    }
    return line + QLatin1Char('\n');
}

} // namespace

QString renderTable(const std::vector<QStringList>& rows) {
    const std::vector<int> widths = columnWidths(rows);
    QString text;
    for (const QStringList& row : rows) {
        text += renderRow(row, widths);
    }
    return text;
}

} // namespace Host
